// The system's message boxes, known by their looks.
#pragma once

#include <windows.h>

#include <string>

// Whether the window is a dialog of the system's class.
bool isSystemDialog(HWND window);

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

// Has the box answered with OK, or with its first button (such as Yes) where it has no OK, as soon as its
// loop runs.
void answerBox(HWND box);

// The window's text.
std::wstring textOf(HWND window);
