#include "host/drive/MessageBoxes.h"

namespace {

// The id of a message box's text.
constexpr int TEXT_ID = 0xFFFF;

bool hasClass(HWND window, const wchar_t* name) {
    wchar_t found[64] = {};
    GetClassNameW(window, found, ARRAYSIZE(found));
    return lstrcmpiW(found, name) == 0;
}

}  // namespace

bool isSystemDialog(HWND window) { return hasClass(window, L"#32770"); }

bool isMessageBox(HWND window) {
    if (!isSystemDialog(window) || !GetDlgItem(window, TEXT_ID)) return false;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!hasClass(child, L"Static") && !hasClass(child, L"Button")) return false;
    }
    return true;
}

std::wstring textOf(HWND window) {
    std::wstring text(GetWindowTextLengthW(window), L'\0');
    text.resize(GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1));
    return text;
}

std::wstring boxText(HWND box) { return textOf(isMessageBox(box) ? GetDlgItem(box, TEXT_ID) : box); }

void answerBox(HWND box) {
    const HWND ok = GetDlgItem(box, IDOK);
    // A box with buttons it doesn't show (a box of Yes and No has an OK all the same) is asked for its
    // default.
    const bool hasOk = ok && (GetWindowLongW(ok, GWL_STYLE) & WS_VISIBLE);
    const WORD button = hasOk ? WORD(IDOK) : LOWORD(SendMessageW(box, DM_GETDEFID, 0, 0));
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED), 0);
}
