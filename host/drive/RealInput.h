// The input of a mouse and a keyboard as the system gets it from them, in place of posted messages.
#pragma once

#include <windows.h>

#include "host/drive/KeyNames.h"
#include "host/drive/Mouse.h"

// Whether the drive works so.
bool usesRealInput();
void useRealInput(bool real);

// Moves the mouse to the spot and does what the flags MOUSEEVENTF_… say there. Its dialog comes to the front,
// since the system hands input to what is there.
void moveMouse(const Spot& spot, DWORD flags);
// Two clicks at one place would be a double click: the second one goes to a place beside the first.
Spot besideLastClick(const Spot& spot);
// A list that was pressed with the right button waits for it in a loop of its own, though the button may have
// come up before a box that the press had brought up. Then it comes up once more.
void repeatLostRelease();
void sendKey(int virtualKey, bool down);
void sendCharacter(wchar_t c);
