// Lists filled by hand-written Win32, as fast as the platform does it: nothing is drawn in between.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

// Adds the texts to a list box, a combo box or, the columns separated by tabs, a list view in report view; to
// a tree as children, with images, of an item of their own, which opens.
void bareFill(HWND list, const std::vector<std::wstring>& texts);
void bareEmpty(HWND list);
// Keeps the number of each row's cell as its item data.
void bareNumberRows(HWND list, int column);
// The control's own sort by item data.
void bareSort(HWND list, bool ascending);
// The first item of a tree: its children sorted by text; opened, or closed.
void bareTreeSort(HWND tree);
void bareTreeOpen(HWND tree, bool open);
// Three columns of a list view in report view.
void bareColumns(HWND list);
