#include "src/grid/WexGrid.h"

#include <uxtheme.h>
#include <vssym32.h>

#include "src/dialog/EntrySelection.h"
#include "src/dialog/EventBridge.h"
#include "src/dialog/TileWarnings.h"
#include "src/grid/EditBracket.h"
#include "src/grid/ListRows.h"
#include "src/platform/base/Text.h"
#include "src/platform/host/HostServices.h"
#include "src/platform/mfc/Drawing.h"

namespace {

struct CloseTheme {
    void operator()(HTHEME theme) const { CloseThemeData(theme); }
};
using UniqueTheme = drawing::Unique<HTHEME, CloseTheme>;

}  // namespace

const CRuntimeClass WexGrid::runtimeClass = {"WexGrid", RUNTIME_CLASS(CGXGridWnd)};

const CRuntimeClass* WexGrid::GetThisClass() { return &runtimeClass; }

const CRuntimeClass* WexGrid::GetRuntimeClass() const { return &runtimeClass; }

CObject* WexGrid::CreateObject() { return new WexGrid; }

const MessageMap& WexGrid::messageMap() const {
    static const MessageMap map(CGXGridWnd::messageMap(), {onRaw<WM_NCPAINT, &WexGrid::onNcPaint>(),
                                                           onRaw<WM_CONTEXTMENU, &WexGrid::onContextMenu>()});
    return map;
}

// In the place of the sunken edge of the platform, the frame that edit boxes have under a theme.
LRESULT WexGrid::onNcPaint(WPARAM region, LPARAM l) {
    const LRESULT result = DefWindowProc(WM_NCPAINT, region, l);
    const UniqueTheme theme(IsThemeActive() ? OpenThemeData(m_hWnd, L"EDIT") : nullptr);
    if (!theme.get() || !(GetExStyle() & WS_EX_CLIENTEDGE)) return result;
    RECT frame = GetWindowRect();
    OffsetRect(&frame, -frame.left, -frame.top);
    RECT inside = frame;
    InflateRect(&inside, -GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYEDGE));
    const HDC dc = GetWindowDC(m_hWnd);
    ExcludeClipRect(dc, inside.left, inside.top, inside.right, inside.bottom);
    DrawThemeBackground(theme.get(), dc, EP_EDITTEXT, ETS_NORMAL, &frame, nullptr);
    ReleaseDC(m_hWnd, dc);
    return result;
}

void WexGrid::begin() {
    ShowWindow(SW_SHOWNORMAL);
    EnableWindow(true);
    ModifyStyle(WS_BORDER, 0);
    ModifyStyleEx(WS_EX_STATICEDGE, 0);
    Initialize();
    CGXGridParam& param = *GetParam();
    param.EnableUndo(false);
    param.EnableMoveCols(false);
    param.EnableMoveRows(false);
    param.EnableTrackRowHeight(false);
    param.SetNewGridLineMode(true);
    param.EnableUndo(true);
}

void WexGrid::applyRecord(CCtrlInfo& tile) {
    const UndoPause pause(*GetParam());
    TileControl::applyRecord(tile);
    SetMergeCellsMode(1, true);
    if (!tile.m_listItems.empty() && GetColCount() > 0)
        addLines(tile);
    else if (!tile.m_listItems.empty())
        warnSurplusFields(*this, fieldsOf(tile.m_listItems.front()), 0);
    // The value counts rows from 0. kept: 0 is no value
    const int row = decimalNumber(tile.m_value);
    if (row > 0 && static_cast<uint32_t>(row) < GetRowCount())
        SetCurrentCell(static_cast<uint32_t>(row) + 1, 0, 10);
    else if (row > 0)
        warnNoEntry(*this, tile.m_value, Entries::complete);
}

void WexGrid::addLines(CCtrlInfo& tile) {
    for (const CString& line : tile.m_listItems) warnOfFields(*this, line);
    const EditBracket bracket(*GetParam());
    const auto alignmentOf = [this](uint32_t column) { return justification(column); };
    addListRows(
        *this, tile.m_listItems,
        {tile.m_endListFlag, tile.m_endListIndex, alignmentOf, rowCellStyle(GetSysColor(COLOR_WINDOW))});
    SetRowCount(GetRowCount() - 1, 2);
}

uint8_t WexGrid::justification(uint32_t column) const {
    const auto found = m_columnJustification.find(column);
    return found == m_columnJustification.end() ? uint8_t{ALIGN_LEFT} : found->second;
}

void WexGrid::setJustification(uint32_t column, uint8_t alignment) {
    m_columnJustification[column] = alignment;
}

void WexGrid::OnChangedSelection(const CGXRange* range, bool dragging, bool key) {
    if (range && !dragging) publish(*this, std::to_wstring(range->top), REASON_SELECTED, m_action);
    CGXGridCore::OnChangedSelection(range, dragging, key);
}

void WexGrid::OnModifyCell(uint32_t row, uint32_t col) {
    publishCell(*this, static_cast<int>(row), static_cast<int>(col), GetValueRowCol(row, col),
                REASON_CELL_CHANGED, m_action);
}

bool WexGrid::OnLeftCell(uint32_t, uint32_t, uint32_t, uint32_t) { return true; }

void WexGrid::OnPasted(size_t taken, size_t refused, size_t outside) {
    if (refused == 0 && outside == 0) return;
    hostPrintf(L"Cells pasted: %zu", taken);
    if (refused > 0) hostPrintf(L"; refused and marked: %zu", refused);
    if (outside > 0) hostPrintf(L"; without a place in the table: %zu", outside);
    hostPrintf(L".\n");
}

void WexGrid::OnTooManyCells() {
    CGXGridWnd::OnTooManyCells();
    hostPrintf(L"No more than %llu cells can be copied, pasted or emptied at a time.\n", MOST_CELLS);
}

void warnOfFields(const WexGrid& grid, std::wstring_view row) {
    const size_t fields = fieldsOf(row), columns = grid.GetColCount() + size_t{1};
    if (fields > columns) [[unlikely]]
        warnSurplusFields(grid, fields, columns);
}

void emptyGrid(CWnd& control, bool byKey) {
    WexGrid* grid = WexGrid::of(&control);
    if (!grid) return;
    const EditBracket bracket(*grid->GetParam());
    if (byKey && grid->GetColCount() == 0) grid->SetColCount(1, 2);
    if (grid->GetColCount() > 0) grid->ClearCells(CGXRange(1, 0, 1, grid->GetColCount()), true);
    grid->SetRowCount(1, 2);
}

void endGridList(CWnd& control, CCtrlInfo& tile) {
    WexGrid* grid = WexGrid::of(&control);
    if (grid && !tile.m_listItems.empty()) grid->addLines(tile);
}
