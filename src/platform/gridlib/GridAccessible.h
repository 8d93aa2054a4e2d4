// A grid to assistive programs. Each cell is a child with its shown text as value, its headers as name, its
// place in the table as description, and its place on the screen, role and state. Children are numbered from
// 1, row by row from the corner of the headers on.
#pragma once

#include <windows.h>

#include <cstdint>

// The answer to a WM_GETOBJECT for the client area.
LRESULT gridObject(HWND grid, WPARAM w);

// The number of a cell's child in a table with that last column.
long childOf(uint32_t row, uint32_t col, uint32_t colCount);
