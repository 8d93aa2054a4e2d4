// Photographs of windows.
#pragma once

#include <windows.h>

#include "host/drive/Picture.h"

// The whole window, its caption too, without the caret, and the menus that are open. Empty where there was no
// memory for it.
Picture pictureOf(HWND window);
