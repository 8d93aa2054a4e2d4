#include "src/grid/CellCode.h"

#include "src/platform/gridlib/NumberFormat.h"

CGXStyle textCellStyle(std::wstring_view text, int code, const std::optional<CString>& choices,
                       uint32_t face) {
    CGXStyle style;
    style.SetValue(text);
    if (code == CODE_ONE_LINE || code == CODE_SEVERAL_LINES) {
        style.SetControl(CONTROL_EDIT).SetWrapText(code == CODE_SEVERAL_LINES);
    } else if (code >= FIRST_CONTROL_CODE) {
        style.SetControl(static_cast<uint16_t>(code));
        if (code == CONTROL_STATIC) style.SetReadOnly(true);
        if (isOnFace(code)) style.SetInterior(face);
        if (choices) style.SetChoiceList(*choices);
    }
    return style;
}

CGXStyle numberCellStyle(double number, int places) {
    return CGXStyle().SetValue(number).SetFormat(FORMAT_PLACES).SetPlaces(places);
}
