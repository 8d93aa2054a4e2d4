#include "host/drive/MessageBoxes.h"

namespace {

// The id of a message box's text.
constexpr int TEXT_ID = 0xFFFF;

bool hasClass(HWND window, const wchar_t* name) {
    wchar_t found[64] = {};
    GetClassNameW(window, found, ARRAYSIZE(found));
    return lstrcmpiW(found, name) == 0;
}

bool isShownButton(HWND window) {
    return window && hasClass(window, L"Button") && (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE);
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
    HWND button = GetDlgItem(box, IDOK);
    if (!isShownButton(button)) {
        button = GetWindow(box, GW_CHILD);
        while (button && !isShownButton(button)) button = GetWindow(button, GW_HWNDNEXT);
    }
    const int id = button ? GetDlgCtrlID(button) : IDOK;
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}
