#include "host/drive/MessageBoxes.h"

#include "host/drive/RealInput.h"
#include "host/drive/WindowClass.h"

namespace {

// The id of a message box's text.
constexpr int TEXT_ID = 0xFFFF;

// The platform's cmb13 and edt1.
constexpr int FILE_NAME_COMBO = 0x47C, FILE_NAME_EDIT = 0x480;

struct NamedButton {
    std::wstring_view name;
    int id;
};

constexpr NamedButton NAMED_BUTTONS[] = {{L"OK", IDOK},        {L"CANCEL", IDCANCEL}, {L"YES", IDYES},
                                         {L"NO", IDNO},        {L"RETRY", IDRETRY},   {L"ABORT", IDABORT},
                                         {L"IGNORE", IDIGNORE}};

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
        if (!hasWindowClass(child, L"Static")) continue;
        const auto icon = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
        for (const NamedIcon& named : NAMED_ICONS)
            if (icon && icon == LoadIconW(nullptr, named.icon)) return named.name;
    }
    return {};
}

bool isShownButton(HWND window) {
    return window && hasWindowClass(window, L"Button") && (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE);
}

// The button of that id, or the first one; null where there is none.
HWND buttonOf(HWND box, int id) {
    HWND button = GetDlgItem(box, id);
    if (isShownButton(button)) return button;
    button = GetWindow(box, GW_CHILD);
    while (button && !isShownButton(button)) button = GetWindow(button, GW_HWNDNEXT);
    return button;
}

void pressButton(HWND box, int id) {
    const HWND button = GetDlgItem(box, id);
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

void CALLBACK answerTimer(HWND box, UINT, UINT_PTR timer, DWORD) noexcept {
    KillTimer(box, timer);
    pressButton(box, static_cast<int>(timer) - 1);
}

}  // namespace

bool isSystemDialog(HWND window) { return hasWindowClass(window, L"#32770"); }

HWND dialogOf(HWND window) {
    HWND at = GetAncestor(window, GA_ROOT);
    while (at && !isSystemDialog(at)) at = GetWindow(at, GW_OWNER);
    return at;
}

bool isMessageBox(HWND window) {
    if (!isSystemDialog(window) || !GetDlgItem(window, TEXT_ID)) return false;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!hasWindowClass(child, L"Static") && !hasWindowClass(child, L"Button")) return false;
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

int boxButton(std::wstring_view name) {
    for (const NamedButton& button : NAMED_BUTTONS)
        if (button.name == name) return button.id;
    return 0;
}

std::wstring_view boxButtonName(int button) {
    for (const NamedButton& known : NAMED_BUTTONS)
        if (known.id == button) return known.name;
    return {};
}

int usualButton(HWND box) {
    const HWND button = buttonOf(box, IDOK);
    return button ? GetDlgCtrlID(button) : IDOK;
}

void answerBox(HWND box, const BoxAnswer& answer) {
    // A dialog for files has a combo box for the name, or an edit box.
    for (const int id : {FILE_NAME_COMBO, FILE_NAME_EDIT})
        if (const HWND name = GetDlgItem(box, id); name && !answer.text.empty())
            SetWindowTextW(name, answer.text.c_str());
    const HWND button = buttonOf(box, answer.button);
    const int id = button ? GetDlgCtrlID(button) : answer.button;
    if (!usesRealInput()) return pressButton(box, id);
    // What the mouse and the keyboard have done before meets the box, as it does for a person; a timer's
    // message comes when all that was taken.
    SetTimer(box, static_cast<UINT_PTR>(id) + 1, USER_TIMER_MINIMUM, &answerTimer);
}
