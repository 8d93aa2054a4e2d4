#include "src/grid/CellCode.h"

#include "src/platform/gridlib/NumberFormat.h"

CGXStyle textCellStyle(const CString& text, int code, const std::optional<CString>& choices, uint32_t face) {
    CGXStyle style;
    style.SetValue(text);
    if (code == CODE_ONE_LINE || code == CODE_SEVERAL_LINES)
        return style.SetControl(CONTROL_EDIT).SetWrapText(code == CODE_SEVERAL_LINES);
    if (code < FIRST_CONTROL_CODE) return style;
    style.SetControl(static_cast<uint16_t>(code));
    if (code == CONTROL_STATIC) style.SetReadOnly(true);
    if (code == CONTROL_FACE || code == CONTROL_FACE_PUSH) style.SetInterior(face);
    if (choices) style.SetChoiceList(*choices);
    return style;
}

CGXStyle numberCellStyle(double number, int places) {
    return CGXStyle().SetValue(number).SetFormat(FORMAT_PLACES).SetPlaces(places);
}
