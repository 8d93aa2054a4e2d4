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
// Whether the spot lies within its window's client area.
bool isInView(const Spot& spot);

// `keys` are those of MK_SHIFT and MK_CONTROL that are held meanwhile.
// Holds the left button down there, until it is let go.
void hold(const Spot& spot, WPARAM keys);
void letGo(const Spot& spot, WPARAM keys);
void click(const Spot& spot, WPARAM keys);
void doubleClick(const Spot& spot, WPARAM keys);
void rightClick(const Spot& spot, WPARAM keys);
void hover(const Spot& spot, WPARAM keys);
// Presses the left button at the first spot, moves to the second one and lets go there. Of one window.
void sweep(const Spot& from, const Spot& to, WPARAM keys);

// A press may open a message box or another dialog before it was handled to its end, whose loop then takes
// the release from the queue while the pressed window can't be worked. Such a release is held back, and
// delivered when that window's dialog can be worked again. To be called in idle moments, and with the window
// that goes. True: there was one.
bool deliverHeldReleases(HWND going);
