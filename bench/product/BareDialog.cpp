#include "bench/product/BareDialog.h"

#include <windows.h>

#include <commctrl.h>

#include <cwchar>
#include <utility>
#include <vector>

#include "bench/dialog/Measure.h"
#include "src/platform/host/HostServices.h"

namespace {

extern "C" IMAGE_DOS_HEADER __ImageBase;

HMODULE ownModule() { return reinterpret_cast<HMODULE>(&__ImageBase); }

WNDPROC g_ownProcedure;
double g_begun, g_shown;

// The owner is told of the first idle moment. The platform's own loop tells of it before it has painted.
LRESULT CALLBACK endAtIdle(HWND frame, UINT message, WPARAM w, LPARAM l) {
    if (message != WM_ENTERIDLE) return CallWindowProcW(g_ownProcedure, frame, message, w, l);
    const auto dialog = reinterpret_cast<HWND>(l);
    RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    g_shown = now();
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    return 0;
}

WNDPROC setProcedure(HWND window, WNDPROC procedure) {
    return reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

// The texts of a list that has none of its own.
void answer(LVITEMW& item) {
    if (item.mask & LVIF_TEXT) std::swprintf(item.pszText, item.cchTextMax, L"Part %d", item.iItem);
}

INT_PTR CALLBACK modalProcedure(HWND dialog, UINT message, WPARAM w, LPARAM prepare) {
    if (message == WM_NOTIFY && reinterpret_cast<NMHDR*>(prepare)->code == LVN_GETDISPINFOW)
        answer(reinterpret_cast<NMLVDISPINFOW*>(prepare)->item);
    if (message == WM_INITDIALOG && prepare) reinterpret_cast<void (*)(HWND)>(prepare)(dialog);
    if (message == WM_COMMAND && LOWORD(w) == IDCANCEL) EndDialog(dialog, IDCANCEL);
    return message == WM_INITDIALOG;
}

struct Tile {
    HWND window;
    RECT atStart;
};

std::vector<Tile> g_tiles;
RECT g_clientAtStart;

// What layout.lsp asks of the product: boxes grow to the right, buttons follow the right edge.
RECT anchored(const Tile& tile, int wider) {
    RECT rect = tile.atStart;
    const int kind = GetDlgCtrlID(tile.window) % 3;
    if (kind != 1) rect.right += wider;
    if (kind == 0) rect.left += wider;
    return rect;
}

void layOut(HWND dialog) {
    RECT client;
    GetClientRect(dialog, &client);
    HDWP batch = BeginDeferWindowPos(static_cast<int>(g_tiles.size()));
    for (const Tile& tile : g_tiles) {
        const RECT rect = anchored(tile, client.right - g_clientAtStart.right);
        batch = DeferWindowPos(batch, tile.window, nullptr, rect.left, rect.top, rect.right - rect.left,
                               rect.bottom - rect.top, SWP_NOZORDER);
    }
    EndDeferWindowPos(batch);
}

INT_PTR CALLBACK modelessProcedure(HWND dialog, UINT message, WPARAM, LPARAM) {
    if (message == WM_SIZE && !g_tiles.empty()) layOut(dialog);
    return message == WM_INITDIALOG;
}

void rememberTiles(HWND dialog) {
    g_tiles.clear();
    GetClientRect(dialog, &g_clientAtStart);
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        RECT rect;
        GetWindowRect(child, &rect);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
        g_tiles.push_back({child, rect});
    }
}

void move(HWND window, int left) {
    SetWindowPos(window, nullptr, left, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

double bareOpenAndClose(HMODULE templates, int id, void (*prepare)(HWND dialog)) {
    const HWND frame = hostGetMainFrame();
    g_ownProcedure = setProcedure(frame, &endAtIdle);
    g_begun = now();
    DialogBoxParamW(templates, MAKEINTRESOURCEW(id), frame, &modalProcedure,
                    reinterpret_cast<LPARAM>(prepare));
    const double spent = now() - g_begun;
    setProcedure(frame, g_ownProcedure);
    return spent;
}

double bareShown() { return g_shown - g_begun; }

double bareOpenAndClose(int id, void (*prepare)(HWND dialog)) {
    return bareOpenAndClose(ownModule(), id, prepare);
}

void BareDialog::open(int id, HWND neighbour) {
    close();
    move(neighbour, 0);
    s_window = CreateDialogParamW(ownModule(), MAKEINTRESOURCEW(id), nullptr, &modelessProcedure, 0);
    rememberTiles(s_window);
    move(s_window, GetSystemMetrics(SM_CXSCREEN) / 2);
    ShowWindow(s_window, SW_SHOWNOACTIVATE);
}

void BareDialog::close() {
    g_tiles.clear();
    if (s_window) DestroyWindow(std::exchange(s_window, nullptr));
}

void BareDialog::resize(int width, int height) {
    SetWindowPos(s_window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void BareDialog::turn(int tab, int page, int first, int count) {
    SendMessageW(item(tab), TCM_SETCURSEL, page, 0);
    HDWP batch = BeginDeferWindowPos(2 * count);
    for (int at = 0; at < 2 * count; ++at) {
        const UINT show = at / count == page ? SWP_SHOWWINDOW : SWP_HIDEWINDOW;
        batch = DeferWindowPos(batch, item(first + at), nullptr, 0, 0, 0, 0,
                               SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | show);
    }
    EndDeferWindowPos(batch);
}
