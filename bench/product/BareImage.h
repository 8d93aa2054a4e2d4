// What an image tile does, by hand: drawing on the window, a bitmap of it, a picture file.
#pragma once

#include <windows.h>

// All give milliseconds. `window` is any child window; nothing of it is kept.

// That many lines with both ends, each on a device context of its own.
double bareVectors(HWND window, int count);
// The window's picture is copied from a bitmap of its size.
double bareRepaint(HWND window);
// Writes a bitmap file whose colors run, 24 bits a pixel.
double writeBmp(const wchar_t* path, int width, int height);
// The file is read, decoded and drawn over the whole window.
double barePicture(HWND window, const wchar_t* path);
