// A dialog by hand against the bare platform, and by the class library, on one template in one run.
//
//     dialog_bench MODULE TEMPLATE [REPETITIONS]
//
// The library's dialog wraps each of its controls, as the product does. Both are owned by a plain window,
// which ends them as soon as they are idle for the first time and everything is painted.
#include <cstdlib>
#include <cwchar>
#include <memory>
#include <vector>

#include "bench/dialog/Measure.h"
#include "src/platform/mfc/CDialog.h"

namespace {

constexpr int CLICKS = 1000;
constexpr int EDITS = 1000;

struct Run {
    double begun = 0;
    double idle = 0;
    // What is measured while the dialog stands open; null: it ends at once.
    void (*work)(HWND dialog) = nullptr;
};
Run g_run;

LRESULT CALLBACK ownerProcedure(HWND window, UINT message, WPARAM w, LPARAM l) {
    if (message != WM_ENTERIDLE) return DefWindowProcW(window, message, w, l);
    if (g_run.idle == 0) {
        const auto dialog = reinterpret_cast<HWND>(l);
        // The platform's own loop tells of idleness before it has painted.
        RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        g_run.idle = now();
        if (g_run.work) g_run.work(dialog);
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    }
    return 0;
}

HWND createOwner() {
    WNDCLASSW request{};
    request.lpfnWndProc = &ownerProcedure;
    request.lpszClassName = L"DialogBenchOwner";
    request.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_APPWORKSPACE + 1);
    RegisterClassW(&request);
    return CreateWindowExW(0, request.lpszClassName, L"dialog_bench", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10,
                           10, 640, 480, nullptr, nullptr, nullptr, nullptr);
}

int g_clicks = 0;

INT_PTR CALLBACK bareProcedure(HWND dialog, UINT message, WPARAM w, LPARAM) {
    if (message == WM_INITDIALOG) return TRUE;
    if (message != WM_COMMAND || HIWORD(w) != BN_CLICKED) return FALSE;
    if (LOWORD(w) == IDCANCEL)
        EndDialog(dialog, IDCANCEL);
    else
        ++g_clicks;
    return TRUE;
}

class Control : public CWnd {
  public:
    const MessageMap& messageMap() const override {
        static const MessageMap map(CWnd::messageMap(), {onReflected<BN_CLICKED, &Control::onClicked>()});
        return map;
    }

  private:
    void onClicked() {
        if (GetDlgCtrlID() == IDCANCEL)
            static_cast<CDialog*>(GetParent())->EndDialog(IDCANCEL);
        else
            ++g_clicks;
    }
};

class LibraryDialog : public CDialog {
  public:
    LibraryDialog(HMODULE module, UINT id, HWND owner) : CDialog(id, CWnd::FromHandle(owner)) {
        m_templateModule = module;
    }

  protected:
    void DoDataExchange(CDataExchange&) override {
        for (HWND control = ::GetWindow(m_hWnd, GW_CHILD); control;
             control = ::GetWindow(control, GW_HWNDNEXT))
            m_controls.emplace_back(std::make_unique<Control>())->SubclassWindow(control);
    }

  private:
    std::vector<std::unique_ptr<Control>> m_controls;
};

HWND firstOf(HWND dialog, const wchar_t* className) {
    const HWND found = FindWindowExW(dialog, nullptr, className, nullptr);
    if (!found) {
        std::fprintf(stderr, "the template has no %ls\n", className);
        std::exit(2);
    }
    return found;
}

void clickButton(HWND dialog) {
    const HWND button = GetDlgItem(dialog, IDOK) ? GetDlgItem(dialog, IDOK) : firstOf(dialog, L"Button");
    for (int i = 0; i < CLICKS; ++i)
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

void fillEdit(HWND dialog) {
    const HWND edit = firstOf(dialog, L"Edit");
    wchar_t text[32];
    for (int i = 0; i < EDITS; ++i) {
        std::swprintf(text, 32, L"value %d", i);
        SetWindowTextW(edit, text);
        GetWindowTextW(edit, text, 32);
    }
}

struct Side {
    const char* name;
    Times open, close, both, click, edit;
};

struct Bench {
    HMODULE module;
    UINT id;
    HWND owner;

    void showBare() const { DialogBoxParamW(module, MAKEINTRESOURCEW(id), owner, &bareProcedure, 0); }
    void showLibrary() const { LibraryDialog(module, id, owner).DoModal(); }

    double show(bool library, void (*work)(HWND)) const {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
        g_run = {now(), 0, work};
        library ? showLibrary() : showBare();
        return now();
    }

    void measure(Side& side, bool library) const {
        const double end = show(library, nullptr);
        side.open.add(g_run.idle - g_run.begun);
        side.close.add(end - g_run.idle);
        side.both.add(end - g_run.begun);
    }

    void measureWork(Times& times, bool library, void (*work)(HWND), int count) const {
        static double spent;
        static void (*inner)(HWND);
        inner = work;
        show(library, [](HWND dialog) {
            const double begun = now();
            inner(dialog);
            spent = now() - begun;
        });
        times.add(spent / count);
    }
};

void print(const Side& side) {
    char key[64];
    const auto line = [&](const char* what, const Times& times) {
        std::snprintf(key, sizeof key, "%s_%s", what, side.name);
        times.print(key);
    };
    line("dialog_open", side.open);
    line("dialog_close", side.close);
    line("dialog_open_close", side.both);
    line("dialog_click", side.click);
    line("dialog_edit_set_get", side.edit);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 3) {
        std::fprintf(stderr, "usage: dialog_bench MODULE TEMPLATE [REPETITIONS]\n");
        return 2;
    }
    const HMODULE module = LoadLibraryExW(arguments[1], nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const UINT id = static_cast<UINT>(_wtoi(arguments[2]));
    if (!module || !FindResourceW(module, MAKEINTRESOURCEW(id), RT_DIALOG)) {
        std::fprintf(stderr, "%ls has no dialog %u\n", arguments[1], id);
        return 2;
    }
    const int repetitions = count > 3 ? _wtoi(arguments[3]) : 50;
    const Bench bench{module, id, createOwner()};
    bench.show(false, nullptr);  // the first of all pays for fonts and themes
    Side bare{"bare"}, library{"library"};
    // In turns, so that a change of the machine's load meets both.
    for (int i = 0; i < repetitions; ++i) {
        bench.measure(bare, false);
        bench.measure(library, true);
    }
    for (int i = 0; i < 5; ++i) {
        bench.measureWork(bare.click, false, &clickButton, CLICKS);
        bench.measureWork(library.click, true, &clickButton, CLICKS);
        bench.measureWork(bare.edit, false, &fillEdit, EDITS);
        bench.measureWork(library.edit, true, &fillEdit, EDITS);
    }
    print(bare);
    print(library);
    std::printf("%-34s %.3f\n", "dialog_open_close_ratio", library.both.median() / bare.both.median());
    return 0;
}
