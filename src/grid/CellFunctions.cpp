#include "src/grid/CellFunctions.h"

#include "src/grid/CalledRow.h"
#include "src/grid/CellCode.h"
#include "src/grid/EditBracket.h"
#include "src/grid/GridArgument.h"
#include "src/platform/gridlib/NumberFormat.h"
#include "src/shell/Module.h"
#include "src/shell/ValueOf.h"

namespace {

constexpr int NO_COLUMN = -1;
constexpr int NEW_ROW = -1;

// A host may leave a string's text out.
std::wstring_view textOrEmpty(const HostValue& value) {
    const wchar_t* text = textOf(value);
    return text ? std::wstring_view(text) : std::wstring_view();
}

// What the value makes of the cell; an empty style for a value that no cell takes.
CGXStyle cellStyle(const HostValue& value, int row, int code, const std::optional<CString>& choices) {
    switch (value.type) {
        case HV_SHORT:
            return CGXStyle().SetValue(value.value.shortValue);
        case HV_LONG:
            return CGXStyle().SetValue(value.value.longValue);
        case HV_REAL:
        case HV_ANGLE:
        case HV_ORIENT:
            return numberCellStyle(value.value.realValue, code);
        case HV_STRING:
            if (row == 0) return CGXStyle().SetValue(textOrEmpty(value));
            // The platform takes as long to tell a color as a cell to be written.
            return textCellStyle(textOrEmpty(value), code, choices,
                                 isOnFace(code) ? GetSysColor(COLOR_3DFACE) : 0);
        case HV_TRUE:
            return CGXStyle().SetValue(resourceText(TEXT_TRUE));
        case HV_NIL:
            return CGXStyle().SetValue(resourceText(TEXT_FALSE));
        default:
            return CGXStyle();
    }
}

void setCell(WexGrid& grid, int row, int column, int code, const CGXStyle& style) {
    const EditBracket bracket(*grid.GetParam());
    const bool wasLocked = grid.LockUpdate(true);
    const CGXRange cell(static_cast<uint32_t>(row), static_cast<uint32_t>(column));
    if (column == 0 && row >= 1 && code != CONTROL_FACE_PUSH)
        grid.SetStyleRange(
            cell, CGXStyle().SetInterior(GetSysColor(COLOR_WINDOW)).SetTextColor(GetSysColor(COLOR_BTNTEXT)),
            0, 0, 2);
    grid.SetStyleRange(cell, style, 0, 0, 2);
    grid.LockUpdate(wasLocked);
}

bool isCode(int code) {
    return code == NO_CODE || code == CODE_ONE_LINE || code == CODE_SEVERAL_LINES ||
           code >= FIRST_CONTROL_CODE;
}

bool isCellValue(const HostValue& value) {
    switch (value.type) {
        case HV_SHORT:
        case HV_LONG:
        case HV_REAL:
        case HV_ANGLE:
        case HV_ORIENT:
        case HV_STRING:
        case HV_TRUE:
        case HV_NIL:
            return true;
        default:
            return false;
    }
}

// What the value and its place make of no use.
void warnOfDropped(const HostValue& value, int row, int code, bool hasChoices) {
    const bool isReal = value.type == HV_REAL || value.type == HV_ANGLE || value.type == HV_ORIENT;
    const bool isText = value.type == HV_STRING;
    if (isText && row != 0 && !isCode(code)) warn(WARN_NO_EFFECT, [=] { return noSuch(L"code", code); });
    const bool isTooPrecise = isReal && code > MOST_PLACES;
    if (isTooPrecise || (!isText && code != NO_CODE && isCode(code)))
        warn(WARN_NO_EFFECT, [=] {
            return L"code " + std::to_wstring(code) +
                   (isReal ? L" of a number is its decimal places, 15 at most" : L" is for texts alone");
        });
    if (hasChoices && !(isText && row != 0 && code >= FIRST_CONTROL_CODE))
        warn(WARN_UNUSED_ARGUMENT,
             L"choices are for texts with a code from 52500 on, below the row of headers");
}

int writeRow(WexGrid& grid, const CString& text, int row, bool merges, int verticalCode) {
    warnOfFields(grid, text);
    const EditBracket bracket(*grid.GetParam());
    return buildGridRow(grid, text, row, merges, verticalCode, rowCellStyle(GetSysColor(COLOR_WINDOW)));
}

}  // namespace

void gridSetCell(LispCall& call) {
    WexGrid* grid = gridArgument(call);
    const int row = call.wholeNumber(), column = call.wholeNumber();
    const int code = call.shortOrLongOr(NO_CODE);
    const HostValue* value = call.next();
    if (!value) call.warnMissing();
    const bool hasColumns = grid && grid->GetColCount() > 0;
    if (hasColumns)
        warnUnlessInGrid(*grid, row, column);
    else if (grid)
        warnNoColumns();
    if (!value || column == NO_COLUMN || !hasColumns) return call.retNil();
    const bool isValue = isCellValue(*value);
    if (!isValue) call.warnMistyped(*value, L"a string, a number, T or nil");
    const std::optional<CString> choices = call.optionalText();
    if (isValue) warnOfDropped(*value, row, code, choices.has_value());
    setCell(*grid, row, column, code, cellStyle(*value, row, code, choices));
    grid->Redraw(2, true);
    call.retVoid();
}

void gridGetCell(LispCall& call) {
    const WexGrid* grid = gridArgument(call);
    const int row = call.wholeNumber(), column = call.wholeNumber();
    if (!grid || call.lacksArgument()) return call.retNil();
    warnUnlessInGrid(*grid, row, column);
    call.ret(grid->GetValueRowCol(static_cast<uint32_t>(row), static_cast<uint32_t>(column)));
}

void gridSetRow(LispCall& call) {
    WexGrid* grid = gridArgument(call);
    const int row = call.wholeNumber();
    const CString text = call.textOrEmpty();
    const bool works = grid && !call.lacksArgument();
    const bool merges = call.isThereAndNotNil();
    // kept: a merge flag, also nil, needs the vertical code behind it; wex_grid_addrow does without
    const bool hasFlag = !call.isPastEnd();
    const int verticalCode = call.shortOrLongOr(NO_VERTICAL_CODE);
    call.retNil();
    // A row of that number is a new one.
    if (works && row != NEW_ROW) warnUnlessInGrid(*grid, row, 0);
    if (works && !(hasFlag && call.lacksArgument())) writeRow(*grid, text, row, merges, verticalCode);
}

void gridAddRow(LispCall& call) {
    WexGrid* grid = gridArgument(call);
    const CString text = call.textOrEmpty();
    if (!grid || call.lacksArgument()) return call.retNil();
    const bool merges = call.isThereAndNotNil();
    const int verticalCode = call.shortOrLongOr(NO_VERTICAL_CODE);
    call.ret(writeRow(*grid, text, NEW_ROW, merges, verticalCode));
}
