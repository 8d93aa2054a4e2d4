// A person's mouse, by posted messages: they are handled when the dialog's loop runs again, in the order of
// posting, with all moves of the focus and all notifications.
#pragma once

#include <windows.h>

// A point of a window, in its client pixels.
struct Spot {
    HWND window;
    POINT point;
};

Spot middleOf(HWND window);

// Holds the left button down there, until it is let go.
void hold(const Spot& spot);
void letGo(const Spot& spot);
void click(const Spot& spot);
// With Ctrl held: adds the entry to the selected ones, or takes it out.
void controlClick(const Spot& spot);
void doubleClick(const Spot& spot);
void rightClick(const Spot& spot);
