// A plug-in that measures for the programs beside it: a clock, work without a hand, and the same work on the
// bare platform. Every function that works gives the milliseconds that it took.
#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <cwchar>
#include <iterator>

#include "bench/dialog/Measure.h"
#include "bench/product/BareDialog.h"
#include "bench/product/BareImage.h"
#include "bench/product/BareLists.h"
#include "src/platform/host/HostLisp.h"
#include "src/platform/host/HostPlugin.h"
#include "src/platform/host/HostServices.h"
#include "src/platform/host/HostUnits.h"

namespace {

int32_t giveReal(double number) {
    HostValue* node = hostBuildList(HV_REAL, number, HV_NONE);
    hostRetVal(node);
    hostRelRb(node);
    return RESULT_SET;
}

const HostValue* argumentNode(int position) {
    const HostValue* node = hostGetArgs();
    for (; node && position > 0; --position) node = node->next;
    return node;
}

int argument(int position) {
    const HostValue* node = argumentNode(position);
    if (!node) return 0;
    return node->type == HV_LONG ? node->value.longValue : node->value.shortValue;
}

const wchar_t* textArgument(int position) { return argumentNode(position)->value.stringValue; }

HWND runningDialog() { return GetLastActivePopup(hostGetMainFrame()); }

template <class Work>
int32_t timed(Work work) {
    return giveReal(timeOf(work));
}

// (bench_now) -> milliseconds since some moment
int32_t clock() { return giveReal(now()); }

// (bench_nothing argument ...): the call alone
int32_t nothing() {
    hostGetArgs();
    hostRetVoid();
    return RESULT_SET;
}

// (bench_click id n): clicks of a button of the running dialog
int32_t click() {
    const HWND dialog = runningDialog();
    const int id = argument(0), n = argument(1);
    const auto button = reinterpret_cast<LPARAM>(GetDlgItem(dialog, id));
    return timed([=] {
        for (int i = 0; i < n; ++i) SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), button);
    });
}

// (bench_bare_lookup id): loading all strings of the plug-in from 1500 up to that id
int32_t bareLookup() {
    const HMODULE plugin = GetModuleHandleW(L"WexDialogs.pgx");
    const auto last = static_cast<UINT>(argument(0));
    return timed([=] {
        wchar_t text[1500];
        for (UINT id = 1500; id <= last; ++id) LoadStringW(plugin, id, text, std::size(text));
    });
}

// (bench_dialog_name id): of the product's dialog with that number; "" for none
int32_t dialogName() {
    wchar_t keys[1500] = L"";
    LoadStringW(GetModuleHandleW(L"WexDialogs.pgx"), static_cast<UINT>(argument(0)), keys, std::size(keys));
    if (wchar_t* comma = std::wcschr(keys, L',')) *comma = L'\0';
    hostRetStr(keys);
    return RESULT_SET;
}

// (bench_bare_open_close "module" id): a dialog from there
int32_t openCloseBare() {
    const HMODULE module = LoadLibraryExW(textArgument(0), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const double spent = bareOpenAndClose(module, argument(1), nullptr);
    FreeLibrary(module);
    return giveReal(spent);
}

// (bench_bare_open_rows "module" id): a dialog from there whose list 118, which has no rows of its own, shows
// a million
int32_t openRowsBare() {
    const HMODULE module = LoadLibraryExW(textArgument(0), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const double spent = bareOpenAndClose(module, argument(1), [](HWND dialog) {
        const HWND list = GetDlgItem(dialog, 118);
        bareColumns(list);
        SendMessageW(list, LVM_SETITEMCOUNT, 1'000'000, 0);
    });
    FreeLibrary(module);
    return giveReal(spent);
}

// (bench_bare_shown): what the last of them took until all was painted
int32_t shownBare() { return giveReal(bareShown()); }

// (bench_bare_dialog id): opens the dialog beside the running one, and puts both where they don't overlap
int32_t openBare() {
    const int id = argument(0);
    return timed([=] { BareDialog::open(id, runningDialog()); });
}

int32_t closeBare() { return timed(&BareDialog::close); }

// (bench_bare_set id n): that many texts set into a box
int32_t setBare() {
    const HWND box = BareDialog::item(argument(0));
    const int n = argument(1);
    return timed([=] {
        wchar_t text[16];
        for (int i = 0; i < n; ++i) {
            std::swprintf(text, std::size(text), L"%d", i);
            SetWindowTextW(box, text);
        }
    });
}

std::vector<std::wstring> g_texts;

// (bench_bare_texts list): keeps the texts for the fillings
int32_t keepTexts() {
    const HostValue* node = argumentNode(1);
    return timed([=] {
        g_texts.clear();
        for (const HostValue* at = node; at && at->type == HV_STRING; at = at->next)
            g_texts.emplace_back(at->value.stringValue);
    });
}

// (bench_bare_fill id)
int32_t fillBare() {
    const HWND list = BareDialog::item(argument(0));
    return timed([=] { bareFill(list, g_texts); });
}

// (bench_bare_columns id)
int32_t columnsBare() {
    const HWND list = BareDialog::item(argument(0));
    return timed([=] { bareColumns(list); });
}

// (bench_bare_open_table id): a dialog whose table 112 is filled before it shows
int32_t openTableBare() {
    return giveReal(bareOpenAndClose(argument(0), [](HWND dialog) {
        const HWND table = GetDlgItem(dialog, 112);
        bareColumns(table);
        bareFill(table, g_texts);
    }));
}

// (bench_bare_open_tree id): a dialog whose tree 112 is filled before it shows
int32_t openTreeBare() {
    return giveReal(
        bareOpenAndClose(argument(0), [](HWND dialog) { bareFill(GetDlgItem(dialog, 112), g_texts); }));
}

// (bench_bare_tree_sort id)
int32_t sortTreeBare() {
    const HWND tree = BareDialog::item(argument(0));
    return timed([=] { bareTreeSort(tree); });
}

// (bench_bare_tree_open id open): opens the first item for 1, closes it for 0
int32_t openItemBare() {
    const HWND tree = BareDialog::item(argument(0));
    const bool open = argument(1);
    return timed([=] { bareTreeOpen(tree, open); });
}

// (bench_sort id column): the head of a column of the running dialog's list control is clicked
int32_t sort() {
    const HWND dialog = runningDialog();
    NMLISTVIEW click{};
    click.hdr.hwndFrom = GetDlgItem(dialog, argument(0));
    click.hdr.idFrom = static_cast<UINT_PTR>(argument(0));
    click.hdr.code = LVN_COLUMNCLICK;
    click.iItem = -1;
    click.iSubItem = argument(1);
    return timed(
        [&] { SendMessageW(dialog, WM_NOTIFY, click.hdr.idFrom, reinterpret_cast<LPARAM>(&click)); });
}

// (bench_bare_number id column): the rows of the bare list get that column's numbers as their item data
int32_t numberBare() {
    const HWND list = BareDialog::item(argument(0));
    const int column = argument(1);
    return timed([=] { bareNumberRows(list, column); });
}

// (bench_bare_sort id ascending): the control sorts by them, up (1) or down (0)
int32_t sortBare() {
    const HWND list = BareDialog::item(argument(0));
    const bool ascending = argument(1) != 0;
    return timed([=] { bareSort(list, ascending); });
}

// (bench_turn id page): a tab control of the running dialog turns to that page, as a click does it
int32_t turn() {
    const HWND dialog = runningDialog();
    const NMHDR change{GetDlgItem(dialog, argument(0)), static_cast<UINT_PTR>(argument(0)),
                       static_cast<UINT>(TCN_SELCHANGE)};
    const int page = argument(1);
    return timed([=] {
        SendMessageW(change.hwndFrom, TCM_SETCURSEL, page, 0);
        SendMessageW(dialog, WM_NOTIFY, change.idFrom, reinterpret_cast<LPARAM>(&change));
    });
}

// (bench_bare_tabs id): two tabs
int32_t tabsBare() {
    const HWND tab = BareDialog::item(argument(0));
    return timed([=] {
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<wchar_t*>(L"Page");
        for (int page = 0; page < 2; ++page)
            SendMessageW(tab, TCM_INSERTITEMW, page, reinterpret_cast<LPARAM>(&item));
        // Below what lies on it.
        SetWindowPos(tab, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    });
}

// (bench_bare_turn id page first n): the same, for pages of n controls with ids from `first` on
int32_t turnBare() {
    const int id = argument(0), page = argument(1), first = argument(2), n = argument(3);
    return timed([=] { BareDialog::turn(id, page, first, n); });
}

// (bench_bare_empty id)
int32_t emptyBare() {
    const HWND list = BareDialog::item(argument(0));
    return timed([=] { bareEmpty(list); });
}

// (bench_bare_size width height): of the window, in pixels
int32_t sizeBare() {
    const int width = argument(0), height = argument(1);
    return timed([=] { BareDialog::resize(width, height); });
}

constexpr wchar_t TYPED[] = L"1'6-1/2";
constexpr int ARCHITECTURAL = 4;

// (bench_edit id n): that many times a distance is put into a box of the running dialog, and editing begins
// and ends
int32_t edit() {
    const HWND dialog = runningDialog(), box = GetDlgItem(dialog, argument(0));
    const int id = argument(0), n = argument(1);
    const auto notify = [=](UINT code) {
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(box));
    };
    return timed([=] {
        for (int i = 0; i < n; ++i) {
            SetWindowTextW(box, TYPED);
            notify(EN_SETFOCUS);
            notify(EN_KILLFOCUS);
        }
    });
}

// (bench_bare_edit id n): the same by hand: what stood there is read, then what was typed, which is written
// anew
int32_t editBare() {
    const HWND box = BareDialog::item(argument(0));
    const int n = argument(1);
    return timed([=] {
        wchar_t text[256];
        for (int i = 0; i < n; ++i) {
            SetWindowTextW(box, TYPED);
            GetWindowTextW(box, text, std::size(text));
            double value = 0;
            GetWindowTextW(box, text, std::size(text));
            hostDisToF(text, ARCHITECTURAL, &value);
            hostRToS(value, ARCHITECTURAL, 4, text, std::size(text));
            SetWindowTextW(box, text);
        }
    });
}

// (bench_distof unit "text" n)
int32_t distof() {
    const int unit = argument(0), n = argument(2);
    const wchar_t* text = textArgument(1);
    return timed([=] {
        double value;
        for (int i = 0; i < n; ++i) hostDisToF(text, unit, &value);
    });
}

// (bench_bare_distof "text" n): by the C library
int32_t distofBare() {
    const int n = argument(1);
    const wchar_t* text = textArgument(0);
    return timed([=] {
        volatile double value;
        for (int i = 0; i < n; ++i) value = std::wcstod(text, nullptr);
        (void)value;
    });
}

// (bench_rtos unit n): 18.5 with four decimals
int32_t rtos() {
    const int unit = argument(0), n = argument(1);
    return timed([=] {
        wchar_t text[64];
        for (int i = 0; i < n; ++i) hostRToS(18.5, unit, 4, text, std::size(text));
    });
}

// (bench_bare_rtos n): by the C library
int32_t rtosBare() {
    const int n = argument(0);
    return timed([=] {
        wchar_t text[64];
        for (int i = 0; i < n; ++i) std::swprintf(text, std::size(text), L"%.*f", 4, 18.5);
    });
}

// (bench_repaint id): a control of the running dialog is painted anew
int32_t repaint() {
    const HWND control = GetDlgItem(runningDialog(), argument(0));
    return timed([=] {
        RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        GdiFlush();
    });
}

// (bench_bare_repaint id): a bitmap is put there
int32_t repaintBare() { return giveReal(bareRepaint(BareDialog::item(argument(0)))); }

// (bench_bare_vectors id n)
int32_t vectorsBare() { return giveReal(bareVectors(BareDialog::item(argument(0)), argument(1))); }

// (bench_bare_picture id "path")
int32_t pictureBare() { return giveReal(barePicture(BareDialog::item(argument(0)), textArgument(1))); }

// (bench_make_bmp "path" width height): a bitmap file of colors that run
int32_t makeBmp() { return giveReal(writeBmp(textArgument(0), argument(1), argument(2))); }

constexpr struct {
    const wchar_t* name;
    HostLispFunction function;
} FUNCTIONS[] = {
    {L"bench_now", &clock},
    {L"bench_click", &click},
    {L"bench_bare_lookup", &bareLookup},
    {L"bench_nothing", &nothing},
    {L"bench_dialog_name", &dialogName},
    {L"bench_bare_open_close", &openCloseBare},
    {L"bench_bare_open_rows", &openRowsBare},
    {L"bench_bare_shown", &shownBare},
    {L"bench_bare_dialog", &openBare},
    {L"bench_bare_end", &closeBare},
    {L"bench_bare_set", &setBare},
    {L"bench_bare_texts", &keepTexts},
    {L"bench_bare_fill", &fillBare},
    {L"bench_bare_columns", &columnsBare},
    {L"bench_bare_open_table", &openTableBare},
    {L"bench_bare_open_tree", &openTreeBare},
    {L"bench_bare_tree_sort", &sortTreeBare},
    {L"bench_bare_tree_open", &openItemBare},
    {L"bench_sort", &sort},
    {L"bench_bare_number", &numberBare},
    {L"bench_bare_sort", &sortBare},
    {L"bench_turn", &turn},
    {L"bench_bare_tabs", &tabsBare},
    {L"bench_bare_turn", &turnBare},
    {L"bench_bare_empty", &emptyBare},
    {L"bench_bare_size", &sizeBare},
    {L"bench_edit", &edit},
    {L"bench_bare_edit", &editBare},
    {L"bench_distof", &distof},
    {L"bench_bare_distof", &distofBare},
    {L"bench_rtos", &rtos},
    {L"bench_bare_rtos", &rtosBare},
    {L"bench_repaint", &repaint},
    {L"bench_bare_repaint", &repaintBare},
    {L"bench_bare_vectors", &vectorsBare},
    {L"bench_bare_picture", &pictureBare},
    {L"bench_make_bmp", &makeBmp},
};

}  // namespace

extern "C" __declspec(dllexport) uint32_t pluginGetApiVersion() { return HOST_API_VERSION; }

extern "C" __declspec(dllexport) int32_t pluginEntryPoint(int32_t message, void*) {
    if (message != PLUGIN_LOAD_DOCUMENT) return 0;
    int code = 0;
    for (const auto& [name, function] : FUNCTIONS) {
        hostDefun(name, code);
        hostRegFunc(function, code++);
    }
    return 0;
}
