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

// Whether cells of that code have the color of a dialog's face.
inline bool isOnFace(int code) { return code == CONTROL_FACE || code == CONTROL_FACE_PUSH; }

// `choices`: one to a line; only control types take them. `face`: the color of a dialog's face (0x00BBGGRR),
// for cells on it.
CGXStyle textCellStyle(std::wstring_view text, int code, const std::optional<CString>& choices,
                       uint32_t face);

// A number that is shown with that many decimal places.
CGXStyle numberCellStyle(double number, int places);
