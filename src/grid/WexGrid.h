// A grid, and what a person does in it as it is told to Lisp.
#pragma once

#include <map>

#include "src/dialog/TileControl.h"
#include "src/platform/gridlib/CGXGridWnd.h"

class WexGrid : public CGXGridWnd, public TileControl {
  public:
    // For other modules. What CreateObject makes is the caller's.
    static const CRuntimeClass runtimeClass;
    __declspec(dllexport) static const CRuntimeClass* GetThisClass();
    __declspec(dllexport) const CRuntimeClass* GetRuntimeClass() const override;
    __declspec(dllexport) static CObject* CreateObject();

    // The wrapper of a grid tile; null for any other window. Asked for each cell that Lisp writes.
    static WexGrid* of(CWnd* wnd) {
        return wnd && wnd->IsKindOf(RUNTIME_CLASS(WexGrid)) ? static_cast<WexGrid*>(wnd) : nullptr;
    }

    CWnd& wnd() override { return *this; }
    void discovered(WexDialog&, CCtrlInfo&) override { begin(); }
    void applyRecord(CCtrlInfo& tile) override;
    bool laidOut() override { return true; }

    // Makes the attached control ready: shown, enabled and without the frame of the template, whatever that
    // says.
    void begin();
    // The rows that wait in the record become rows of the table, the first one in the place of the last row;
    // lines that go on with others leave the record.
    void addLines(CCtrlInfo& tile);

    // How that column's cells are aligned in rows that come from a list. A HorizontalAlignment.
    uint8_t justification(uint32_t column) const;
    void setJustification(uint32_t column, uint8_t alignment);

    // --- what a person does

    void OnChangedSelection(const CGXRange* range, bool dragging, bool key) override;
    void OnModifyCell(uint32_t row, uint32_t col) override;
    bool OnLeftCell(uint32_t row, uint32_t col, uint32_t newRow, uint32_t newCol) override;
    void OnPasted(size_t taken, size_t refused, size_t outside) override;
    void OnTooManyCells() override;

  protected:
    const MessageMap& messageMap() const override;

  private:
    LRESULT onNcPaint(WPARAM region, LPARAM l);
    LRESULT onContextMenu(WPARAM w, LPARAM l);  // GridMenu.cpp

    // Of the columns that have one: the number of a column may be any.
    std::map<uint32_t, uint8_t> m_columnJustification;
};

// The families' functions for controls of the grid's window class; those that are no tile stay as they are.

// By key, a table without columns gets one.
void emptyGrid(CWnd& control, bool byKey);
void endGridList(CWnd& control, CCtrlInfo& tile);

// Tells the author of fields in a row's text for which the grid has no columns.
void warnOfFields(const WexGrid& grid, std::wstring_view row);
