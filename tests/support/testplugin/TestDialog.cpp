#include "tests/support/testplugin/TestDialog.h"

#include <commctrl.h>

#include "src/platform/base/Text.h"

namespace {

constexpr const wchar_t* KEYS[] = {L"edit", L"check", L"disabled", L"list",  L"combo",
                                   L"rows", L"tree",  L"tab",      L"hidden"};
constexpr int FIRST_ID = 110;

HWND g_window;
bool g_stubborn;
std::wstring g_events;

HWND item(int id) { return GetDlgItem(g_window, id); }

void addRow(int row, const wchar_t* first, const wchar_t* second) {
    LVITEMW cell{};
    cell.mask = LVIF_TEXT;
    cell.iItem = row;
    cell.pszText = const_cast<wchar_t*>(first);
    SendMessageW(item(115), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&cell));
    cell.iSubItem = 1;
    cell.pszText = const_cast<wchar_t*>(second);
    SendMessageW(item(115), LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&cell));
}

void addColumn(int column, const wchar_t* title) {
    LVCOLUMNW head{};
    head.mask = LVCF_TEXT | LVCF_WIDTH;
    head.cx = 80;
    head.pszText = const_cast<wchar_t*>(title);
    SendMessageW(item(115), LVM_INSERTCOLUMNW, column, reinterpret_cast<LPARAM>(&head));
}

HTREEITEM addBranch(HTREEITEM parent, const wchar_t* text) {
    TVINSERTSTRUCTW branch{};
    branch.hParent = parent;
    branch.hInsertAfter = TVI_LAST;
    branch.item.mask = TVIF_TEXT;
    branch.item.pszText = const_cast<wchar_t*>(text);
    const LRESULT made = SendMessageW(item(116), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&branch));
    return reinterpret_cast<HTREEITEM>(made);
}

void addTab(int index, const wchar_t* text) {
    TCITEMW tab{};
    tab.mask = TCIF_TEXT;
    tab.pszText = const_cast<wchar_t*>(text);
    SendMessageW(item(117), TCM_INSERTITEMW, index, reinterpret_cast<LPARAM>(&tab));
}

void fill() {
    for (int i = 0; i < 30; ++i) {
        const std::wstring text = L"entry " + std::to_wstring(i);
        SendMessageW(item(113), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
        SendMessageW(item(114), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
    addColumn(0, L"Part");
    addColumn(1, L"Size");
    for (int row = 0; row < 20; ++row) {
        addRow(row, (L"part " + std::to_wstring(row)).c_str(), std::to_wstring(row * 10).c_str());
    }
    const HTREEITEM metals = addBranch(TVI_ROOT, L"metals");
    addBranch(metals, L"copper");
    addBranch(metals, L"tin");
    addBranch(TVI_ROOT, L"gases");
    addTab(0, L"General");
    addTab(1, L"Details");
}

void note(int id, int code) {
    if (id < FIRST_ID || id >= FIRST_ID + static_cast<int>(ARRAYSIZE(KEYS))) return;
    g_events.append(KEYS[id - FIRST_ID]).append(L" ").append(std::to_wstring(code)).append(L";");
}

bool isWorthNoting(UINT code) {
    return code == NM_DBLCLK || code == NM_RCLICK || code == LVN_COLUMNCLICK || code == TCN_SELCHANGE;
}

INT_PTR CALLBACK dialogProc(HWND window, UINT message, WPARAM w, LPARAM l) {
    switch (message) {
        case WM_INITDIALOG:
            g_window = window;
            fill();
            return TRUE;
        case WM_COMMAND:
            note(LOWORD(w), HIWORD(w));
            if ((LOWORD(w) == IDOK || LOWORD(w) == IDCANCEL) && !g_stubborn) EndDialog(window, LOWORD(w));
            return TRUE;
        case WM_NOTIFY: {
            const auto& header = *reinterpret_cast<const NMHDR*>(l);
            // Notification codes of common controls are negative numbers.
            if (isWorthNoting(header.code))
                note(static_cast<int>(header.idFrom), static_cast<int>(header.code));
            return FALSE;
        }
        case WM_HELP:
            g_events += L"help;";
            return TRUE;
        case WM_DESTROY:
            g_window = nullptr;
            return FALSE;
    }
    return FALSE;
}

}  // namespace

int runTestDialog(HMODULE module, HWND owner, bool stubborn) {
    g_events.clear();
    g_stubborn = stubborn;
    return static_cast<int>(DialogBoxParamW(module, MAKEINTRESOURCEW(100), owner, &dialogProc, 0));
}

const std::wstring& testDialogEvents() { return g_events; }

HWND findInTestDialog(const wchar_t* dialog, const wchar_t* key, int id) {
    if (!g_window || (dialog && !equalIgnoringCase(dialog, L"everything"))) return nullptr;
    if (!key) return id == -1 ? g_window : item(id);
    for (int i = 0; i < static_cast<int>(ARRAYSIZE(KEYS)); ++i) {
        if (equalIgnoringCase(key, KEYS[i])) return item(FIRST_ID + i);
    }
    return equalIgnoringCase(key, L"ok")       ? item(IDOK)
           : equalIgnoringCase(key, L"cancel") ? item(IDCANCEL)
                                               : nullptr;
}
