// What the code of wex_grid_setcell makes of a cell that gets a text. Portable.
#pragma once

#include <cstdint>
#include <optional>

#include "src/platform/gridlib/CGXStyle.h"

// Any code from FIRST_CONTROL_CODE up is a control type; below it there are only these two.
enum CellCode : int {
    NO_CODE = -1,
    CODE_ONE_LINE = 100,       // text to edit
    CODE_SEVERAL_LINES = 101,  // text to edit, wrapped
    FIRST_CONTROL_CODE = 52500,
};

// `choices`: one to a line; only control types take them. `face`: the color of a dialog's face (0x00BBGGRR).
CGXStyle textCellStyle(const CString& text, int code, const std::optional<CString>& choices, uint32_t face);

// A number that is shown with that many decimal places.
CGXStyle numberCellStyle(double number, int places);
