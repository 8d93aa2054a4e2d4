// The system's message boxes, known by their looks.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

// Whether the window is a dialog of the system's class.
bool isSystemDialog(HWND window);

// The dialog of that class that a window stands in; the list of a combo box has one as its owner.
HWND dialogOf(HWND window);

// Whether the window is a message box: a text, perhaps an icon, and buttons only.
bool isMessageBox(HWND window);

// What it says: a message box's text, another dialog's caption.
std::wstring boxText(HWND box);

// How a message box looks, beside its text.
struct BoxLook {
    std::wstring title;
    // "exclamation", "information", "question" or "stop"; empty for none.
    std::wstring icon;
    // The title of the window in front of which it stands; empty for none.
    std::wstring owner;
};
BoxLook boxLook(HWND box);

// What a person does with a box.
struct BoxAnswer {
    int button = IDOK;
    // Typed into the box for a file's name; nothing where it is empty.
    std::wstring text;
};

// The id of a button by its name in capitals, such as "CANCEL"; 0 for another name.
int boxButton(std::wstring_view name);

// The other way round; empty for another id.
std::wstring_view boxButtonName(int button);
// The button that a box is answered with if nobody says otherwise: OK, or its first one.
int usualButton(HWND box);

// Has the box answered as soon as its loop runs; where it lacks the button, with its first one (such as Yes).
void answerBox(HWND box, const BoxAnswer& answer);

// The window's text.
std::wstring textOf(HWND window);
