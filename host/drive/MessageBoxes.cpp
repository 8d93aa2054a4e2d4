#include "host/drive/MessageBoxes.h"

namespace {

// The id of a message box's text.
constexpr int TEXT_ID = 0xFFFF;

bool hasClass(HWND window, const wchar_t* name) {
    wchar_t found[64] = {};
    GetClassNameW(window, found, ARRAYSIZE(found));
    return lstrcmpiW(found, name) == 0;
}

struct NamedIcon {
    const wchar_t* name;
    const wchar_t* icon;
};

// Not constant: the system's names for its icons are numbers in the guise of pointers.
const NamedIcon NAMED_ICONS[] = {{L"exclamation", IDI_EXCLAMATION},
                                 {L"information", IDI_INFORMATION},
                                 {L"question", IDI_QUESTION},
                                 {L"stop", IDI_HAND}};

// The box's picture is one of the system's shared icons. Windows may take other ones for its boxes.
std::wstring iconOf(HWND box) {
    for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!hasClass(child, L"Static")) continue;
        const auto icon = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
        for (const NamedIcon& named : NAMED_ICONS)
            if (icon && icon == LoadIconW(nullptr, named.icon)) return named.name;
    }
    return {};
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

BoxLook boxLook(HWND box) {
    const HWND owner = GetWindow(box, GW_OWNER);
    return {textOf(box), iconOf(box), owner ? textOf(owner) : std::wstring()};
}

void answerBox(HWND box) {
    HWND button = GetDlgItem(box, IDOK);
    if (!isShownButton(button)) {
        button = GetWindow(box, GW_CHILD);
        while (button && !isShownButton(button)) button = GetWindow(button, GW_HWNDNEXT);
    }
    const int id = button ? GetDlgCtrlID(button) : IDOK;
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}
