// What a grid's window tells who asks it: by these questions the host's drive looks at a grid and works it as
// a person does. Asked within the process and on the window's thread. Portable.
#pragma once

#include <cstdint>

#include "src/platform/base/PixelRect.h"

// The window class of a grid.
inline constexpr wchar_t GRID_WINDOW_CLASS[] = L"GXWND";

// The name of the message, to be registered by both sides. Its WPARAM is a GridQuestion, its LPARAM points to
// the record of that question, which the grid fills. The answer is 1, and 0 where the table has no such cell
// or the window doesn't know the question. No question changes the table or runs Lisp.
inline constexpr wchar_t GRID_QUERY_MESSAGE[] = L"WexDialogs.GridQuery";

enum class GridQuestion : uintptr_t {
    Table = 1,  // GridTableLook
    Cell = 2,   // GridCellLook, of the cell that its `at` names
    Show =
        3,    // GridPlace: scrolls that cell into view, as far as it can be; nothing of the selection changes
    Hit = 4,  // GridHit; no cell lies where the answer is 0
    Select = 5,  // GridTableLook: makes its current cell and its areas those of the grid, which tells nobody
};

// Row 0 holds the heads of the columns, column 0 those of the rows; data begins at row 1, column 1.
struct GridPlace {
    uint32_t row = 0;
    uint32_t column = 0;
};

// The edges belong to the range. Whole rows reach from column 1 to the last one, whole columns from row 1 to
// the last one.
struct GridArea {
    enum Kind : uint32_t { cells, rows, columns, table };

    uint32_t top = 0, left = 0, bottom = 0, right = 0;
    Kind kind = cells;  // how it was selected

    bool contains(GridPlace at) const {
        return at.row >= top && at.row <= bottom && at.column >= left && at.column <= right;
    }
};

struct GridTableLook {
    uint32_t rows = 0;     // the number of the last row: row 0 isn't counted
    uint32_t columns = 0;  // the number of the last column
    bool hasCurrent = false;
    GridPlace current;  // where typing goes
    GridPlace first;    // the first row and column in view behind the heads
    // What is selected, in the order of selecting. Belongs to the grid, until it is asked again or changes.
    const GridArea* areas = nullptr;
    uint32_t areaCount = 0;
};

// The texts belong to the grid, until it is asked again or changes.
// What a press means at a point of the window, in client pixels.
struct GridHit {
    int32_t x = 0, y = 0;       // filled by who asks
    GridPlace at;               // of merged cells the first
    bool onBorder = false;      // the border of a column or row, which is about to be sized
    bool opensChoices = false;  // the arrow of a cell with choices
};

struct GridCellLook {
    GridPlace at;  // filled by who asks

    // Where the cell is seen, in the window's client pixels; for merged cells all of what they cover. What is
    // scrolled out of the view or lies under the heads is left out, so a cell that isn't in view has an empty
    // one.
    PixelRect rect;

    const wchar_t* text = L"";     // as shown; of the cell that is edited, what its editor shows
    const wchar_t* choices = L"";  // of a choice list, joined by line feeds
    int32_t controlType = 0;
    bool readOnly = false;
    bool wraps = false;
    bool isEdited = false;    // its editor is open
    bool isEditable = false;  // a person may change it
    bool isTicked = false;    // it is a box with a tick
    int32_t merge = 0;        // 0 not, 1 along the row, 2 down the column, 3 both: as its style says
    int32_t alignment = 0;    // 0 left, 1 centre, 2 right
    uint32_t interior = 0;    // colours are 0x00BBGGRR
    uint32_t textColor = 0;
    int32_t places = 0;  // decimals of a number; below 0 for as many as it has
    int32_t width = 0;   // of its column, in pixels at 96 dots per inch
    int32_t height = 0;  // of its row
};
