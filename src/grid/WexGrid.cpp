#include "src/grid/WexGrid.h"

#include "src/dialog/EventBridge.h"
#include "src/grid/EditBracket.h"
#include "src/grid/ListRows.h"
#include "src/platform/base/Text.h"
#include "src/platform/host/HostServices.h"

const CRuntimeClass WexGrid::runtimeClass = {"WexGrid", RUNTIME_CLASS(CGXGridWnd)};

const CRuntimeClass* WexGrid::GetThisClass() { return &runtimeClass; }

const CRuntimeClass* WexGrid::GetRuntimeClass() const { return &runtimeClass; }

CObject* WexGrid::CreateObject() { return new WexGrid; }

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
    if (!tile.m_listItems.empty() && GetColCount() > 0) addLines(tile);
    // The value counts rows from 0. kept: 0 is no value
    const int row = decimalNumber(tile.m_value);
    if (row > 0 && static_cast<uint32_t>(row) < GetRowCount())
        SetCurrentCell(static_cast<uint32_t>(row) + 1, 0, 10);
}

void WexGrid::addLines(CCtrlInfo& tile) {
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

void WexGrid::OnPasted(size_t taken, size_t refused) {
    if (refused > 0)
        hostPrintf(L"Pasted: %zu cells were taken, %zu refused. They are marked.\n", taken, refused);
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
