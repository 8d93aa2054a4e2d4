#include "tests/support/testplugin/TestDialog.h"

#include <commctrl.h>

#include "src/platform/base/Text.h"

namespace {

constexpr const wchar_t* KEYS[] = {L"edit", L"check", L"disabled", L"list", L"tree", L"hidden"};
constexpr int FIRST_ID = 110;

HWND g_window;
bool g_stubborn;

HWND item(int id) { return GetDlgItem(g_window, id); }

HTREEITEM addBranch(HTREEITEM parent, const wchar_t* text, int image) {
    TVINSERTSTRUCTW branch{};
    branch.hParent = parent;
    branch.hInsertAfter = TVI_LAST;
    branch.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    branch.item.iImage = image;
    branch.item.iSelectedImage = image + 10;
    branch.item.pszText = const_cast<wchar_t*>(text);
    const LRESULT made = SendMessageW(item(114), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&branch));
    return reinterpret_cast<HTREEITEM>(made);
}

void fill() {
    // As a style of the template it would come before the tree can make its boxes.
    SetWindowLongW(item(114), GWL_STYLE, GetWindowLongW(item(114), GWL_STYLE) | TVS_CHECKBOXES);
    const HTREEITEM metals = addBranch(TVI_ROOT, L"metals", 0);
    addBranch(metals, L"copper", 1);
    addBranch(metals, L"tin", 2);
    addBranch(TVI_ROOT, L"gases", 3);
}

INT_PTR CALLBACK dialogProc(HWND window, UINT message, WPARAM w, LPARAM) {
    switch (message) {
        case WM_INITDIALOG:
            g_window = window;
            fill();
            return TRUE;
        case WM_COMMAND:
            if ((LOWORD(w) == IDOK || LOWORD(w) == IDCANCEL) && !g_stubborn) EndDialog(window, LOWORD(w));
            return TRUE;
        case WM_DESTROY:
            g_window = nullptr;
            return FALSE;
    }
    return FALSE;
}

}  // namespace

int runTestDialog(HMODULE module, HWND owner, bool stubborn) {
    g_stubborn = stubborn;
    return static_cast<int>(DialogBoxParamW(module, MAKEINTRESOURCEW(100), owner, &dialogProc, 0));
}

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
