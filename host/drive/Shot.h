// Photographs of windows.
#pragma once

#include <windows.h>

#include <string>

// Writes the whole window, its caption too, to a PNG file. Throws lisp::Error where the file can't be
// written.
void photograph(HWND window, const std::wstring& path);
