#include "src/grid/GridFunctions.h"

#include <algorithm>

#include "src/dialog/CurrentTile.h"
#include "src/grid/EditBracket.h"
#include "src/grid/GridArgument.h"
#include "src/grid/StyleSort.h"

namespace {

// Larger tables are refused: each row has a header, and a row's text may fill all columns.
constexpr int MOST_ROWS = 16'000'000;
constexpr int MOST_COLUMNS = 65'535;

CGXRange rangeOf(int top, int left, int bottom, int right) {
    const auto place = [](int number) { return static_cast<uint32_t>(number); };
    return {place(top), place(left), place(bottom), place(right)};
}

// Of a row or a column. A negative one changes nothing.
std::optional<int> sizeArgument(LispCall& call) {
    const auto size = call.shortNumber();
    if (size && *size < 0) call.warnOfArgument([=] { return std::to_wstring(*size) + L" is no size"; });
    return size;
}

int lastColumnOf(int columns) { return std::max(columns, 1) - 1; }

// Left where there is no code.
uint8_t alignmentNamed(const std::optional<CString>& code) {
    if (code == L"C") return ALIGN_CENTER;
    if (code == L"R") return ALIGN_RIGHT;
    if (code && code != L"L")
        warn(WARN_NO_EFFECT,
             [&] { return quoted(*code) + L" is none of \"L\", \"C\" and \"R\", and counts as \"L\""; });
    return ALIGN_LEFT;
}

}  // namespace

void gridSetRowColumns(LispCall& call) {
    WexGrid* grid = gridArgument(call);
    const int rows = call.wholeNumber(), given = call.wholeNumber();
    if (!grid || call.lacksArgument()) return call.retNil();
    const int columns = given == 0 ? 1 : given;
    if (rows < 0 || rows > MOST_ROWS || lastColumnOf(columns) > MOST_COLUMNS)
        warn(WARN_OUTSIDE, [=] {
            return L"a grid can't have " + std::to_wstring(rows) + L" rows and " + std::to_wstring(columns) +
                   L" columns: what can't be stays as it is";
        });
    const UndoPause pause(*grid->GetParam());
    if (rows >= 0 && rows <= MOST_ROWS) grid->SetRowCount(static_cast<uint32_t>(rows), 2);
    const int lastColumn = lastColumnOf(columns);
    if (lastColumn <= MOST_COLUMNS) grid->SetColCount(static_cast<uint32_t>(lastColumn), 2);
    // kept: a single row's header stays as it is
    if (rows >= 2 && columns >= 1) {
        const CGXStyle header = CGXStyle()
                                    .SetControl(CONTROL_STATIC)
                                    .SetReadOnly(true)
                                    .SetValue(L"")
                                    .SetInterior(GetSysColor(COLOR_WINDOW));
        grid->SetStyleRange(CGXRange(1, 0, static_cast<uint32_t>(rows), 0), header, 0, 0, 2);
    }
    call.retVoid();
}

void gridSetRowHeight(LispCall& call) {
    WexGrid* grid = gridArgument(call);
    const int given = call.wholeNumber();
    const auto height = sizeArgument(call);
    if (!grid || call.lacksArgument()) return call.retNil();
    warnUnlessInGrid(*grid, given, 0);
    const auto row = static_cast<uint32_t>(given);
    if (height) grid->SetRowHeight(row, row, *height, nullptr, 2, 0);
    call.retVoid();
}

void gridSetColumnWidth(LispCall& call) {
    WexGrid* grid = gridArgument(call);
    const int given = call.wholeNumber();
    const auto width = sizeArgument(call);
    if (!grid || call.lacksArgument()) return call.retNil();
    warnUnlessInGrid(*grid, 0, given);
    const auto column = static_cast<uint32_t>(given);
    if (width) grid->SetColWidth(column, column, *width, nullptr, 2, 0);
    call.retVoid();
}

void gridGetColumnCount(LispCall& call) {
    if (const WexGrid* grid = gridArgument(call))
        call.ret(static_cast<int>(grid->GetColCount()));
    else
        call.retNil();
}

void gridGetRowCount(LispCall& call) {
    CWnd* control = controlOf(call.tile());
    if (!control) return call.retNil();
    const WexGrid* grid = gridOf(control);
    call.ret(grid ? static_cast<int>(grid->GetRowCount()) : 0);
}

void gridClearCells(LispCall& call) {
    WexGrid* grid = gridArgument(call);
    const int top = call.wholeNumber(), left = call.wholeNumber();
    const int bottom = call.wholeNumber(), right = call.wholeNumber();
    if (!grid || call.lacksArgument()) return call.retNil();
    warnUnlessInGrid(*grid, top, left);
    warnUnlessInGrid(*grid, bottom, right);
    const bool styles = call.isTrueOrNotZero();
    const EditBracket bracket(*grid->GetParam());
    if (grid->GetColCount() > 0)
        grid->ClearCells(rangeOf(top, left, bottom, right), styles);
    else
        warnNoColumns();
    call.retVoid();
}

void gridSetJustification(LispCall& call) {
    WexGrid* grid = gridArgument(call);
    const int column = call.wholeNumber();
    const uint8_t alignment = alignmentNamed(call.text());
    const bool works = grid && !call.lacksArgument() && column >= 0;
    call.retNil();
    if (grid) warnUnlessInGrid(*grid, 0, column);
    if (!works) return;
    const auto aligned = static_cast<uint32_t>(column);
    grid->setJustification(aligned, alignment);
    const EditBracket bracket(*grid->GetParam());
    const uint32_t rows = grid->GetRowCount();
    // kept: the last row is left out
    if (rows > 0)
        grid->SetStyleRange(CGXRange(0, aligned, rows - 1, aligned),
                            CGXStyle().SetHorizontalAlignment(alignment), 0, 0, 2);
}

void gridSortColByText(LispCall& call) {
    WexGrid* grid = gridArgument(call);
    const int column = call.wholeNumber();
    if (!grid || call.lacksArgument()) return call.retNil();
    warnUnlessInGrid(*grid, 0, column);
    sortRowsByText(*grid, column, call.isTrueOrNotZero(), 1, -1);
    call.retVoid();
}
