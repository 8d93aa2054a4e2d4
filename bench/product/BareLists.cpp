#include "bench/product/BareLists.h"

#include <commctrl.h>

#include <cwchar>

namespace {

bool isOf(HWND list, const wchar_t* name) {
    wchar_t found[32];
    GetClassNameW(list, found, 32);
    return lstrcmpiW(found, name) == 0;
}

void addEntries(HWND list, UINT message, const std::vector<std::wstring>& texts) {
    for (const std::wstring& text : texts)
        SendMessageW(list, message, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void addRow(HWND list, int row, std::wstring text) {
    LVITEMW item{};
    item.iItem = row;
    item.mask = LVIF_TEXT;
    size_t start = 0;
    for (;; ++item.iSubItem) {
        const size_t tab = text.find(L'\t', start);
        if (tab != std::wstring::npos) text[tab] = L'\0';
        item.pszText = text.data() + start;
        SendMessageW(list, item.iSubItem ? LVM_SETITEMW : LVM_INSERTITEMW, 0,
                     reinterpret_cast<LPARAM>(&item));
        if (tab == std::wstring::npos) return;
        start = tab + 1;
    }
}

void addRows(HWND list, const std::vector<std::wstring>& texts) {
    int row = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    for (const std::wstring& text : texts) addRow(list, row++, text);
}

HTREEITEM addItem(HWND tree, HTREEITEM parent, const std::wstring& text) {
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = const_cast<wchar_t*>(text.c_str());
    insert.item.iSelectedImage = 1;
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

LPARAM firstItem(HWND tree) { return SendMessageW(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0); }

void addItems(HWND tree, const std::vector<std::wstring>& texts) {
    const HTREEITEM above = addItem(tree, nullptr, L"All");
    for (const std::wstring& text : texts) addItem(tree, above, text);
}

}  // namespace

void bareFill(HWND list, const std::vector<std::wstring>& texts) {
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    if (isOf(list, L"ListBox"))
        addEntries(list, LB_ADDSTRING, texts);
    else if (isOf(list, L"ComboBox"))
        addEntries(list, CB_ADDSTRING, texts);
    else if (isOf(list, WC_TREEVIEWW))
        addItems(list, texts);
    else
        addRows(list, texts);
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    if (isOf(list, WC_TREEVIEWW)) bareTreeOpen(list, true);
    InvalidateRect(list, nullptr, TRUE);
}

void bareEmpty(HWND list) {
    if (isOf(list, WC_TREEVIEWW)) {
        SendMessageW(list, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
        return;
    }
    const bool isListBox = isOf(list, L"ListBox"), isComboBox = isOf(list, L"ComboBox");
    SendMessageW(list, isListBox ? LB_RESETCONTENT : isComboBox ? CB_RESETCONTENT : LVM_DELETEALLITEMS, 0, 0);
}

void bareTreeSort(HWND tree) {
    SendMessageW(tree, TVM_SORTCHILDREN, 0, firstItem(tree));
    InvalidateRect(tree, nullptr, TRUE);
}

void bareTreeOpen(HWND tree, bool open) {
    SendMessageW(tree, TVM_EXPAND, open ? TVE_EXPAND : TVE_COLLAPSE, firstItem(tree));
}

void bareNumberRows(HWND list, int column) {
    LVITEMW item{};
    wchar_t text[64];
    const auto rows = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    for (; item.iItem < rows; ++item.iItem) {
        LVITEMW cell{};
        cell.iSubItem = column;
        cell.pszText = text;
        cell.cchTextMax = 64;
        SendMessageW(list, LVM_GETITEMTEXTW, item.iItem, reinterpret_cast<LPARAM>(&cell));
        item.mask = LVIF_PARAM;
        item.lParam = static_cast<LPARAM>(std::wcstod(text, nullptr));
        SendMessageW(list, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
}

void bareSort(HWND list, bool ascending) {
    const PFNLVCOMPARE compare = [](LPARAM a, LPARAM b, LPARAM up) -> int {
        return static_cast<int>(up ? a - b : b - a);
    };
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LVM_SORTITEMS, ascending, reinterpret_cast<LPARAM>(compare));
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

void bareColumns(HWND list) {
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    for (const wchar_t* title : {L"Text", L"Number", L"Distance"}) {
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.cx = 100;
        column.pszText = const_cast<wchar_t*>(title);
        SendMessageW(list, LVM_INSERTCOLUMNW, 3, reinterpret_cast<LPARAM>(&column));
    }
}
