// The class of a window, by which the host knows controls.
#pragma once

#include <windows.h>

#include <string>

// Empty for what is no window.
std::wstring windowClass(HWND window);

// Letter case doesn't count, as for the system.
bool hasWindowClass(HWND window, const wchar_t* name);
