// A grid as programs see it: calls that shape and fill the table, and what a derived class hears. It needs no
// window; CGXGridWnd is one that shows it. Portable.
//
// Row 0 is the row of column headers, column 0 the column of row headers. Heights and widths are in pixels at
// 96 dots per inch. The arguments named flags and the like have one meaning each here and are taken for any
// value: what changed is shown with the next paint.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "src/platform/base/CString.h"
#include "src/platform/gridlib/CGXRange.h"
#include "src/platform/gridlib/CGXStyle.h"
#include "src/platform/gridlib/GridSelection.h"
#include "src/platform/gridlib/GridTable.h"

class CGXGridCore {
  public:
    virtual ~CGXGridCore() = default;

    // --- what derived classes override. Each may run a program that changes the grid or ends its dialog, so
    // it is called when the grid's own state is settled: outside of painting, with no mouse button captured.

    // The grid was made ready.
    virtual void OnGridInitialUpdate() {}
    // A person selected something else. `range` is the range that was changed last, null where nothing is
    // selected any more; `dragging`: the gesture still goes on, and a call without it will follow; `key`: it
    // was the keyboard.
    virtual void OnChangedSelection(const CGXRange* /*range*/, bool /*dragging*/, bool /*key*/) {}
    // A person is about to edit the current cell. False forbids it.
    virtual bool OnStartEditing(uint32_t /*row*/, uint32_t /*col*/) { return true; }
    // A person changed a cell: with each change of an open cell's text, each choice taken, and for each cell
    // that a paste, a deletion or an undo changed, in the order of the cells.
    virtual void OnModifyCell(uint32_t /*row*/, uint32_t /*col*/) {}
    // A person gave up editing; the cell has its former text again.
    virtual void OnCancelEditing(uint32_t /*row*/, uint32_t /*col*/) {}
    // A person moves the current cell from one to another. False forbids it.
    virtual bool OnLeftCell(uint32_t /*row*/, uint32_t /*col*/, uint32_t /*newRow*/, uint32_t /*newCol*/) {
        return true;
    }

    // --- the table

    // Belongs to the grid.
    CGXGridParam* GetParam() { return &m_table.param(); }
    // The number of the last row, the last column.
    uint32_t GetRowCount() const { return m_table.rowCount(); }
    uint32_t GetColCount() const { return m_table.colCount(); }
    // False, with nothing changed, for a count above 0x7FFFFFFE, which a negative one is.
    bool SetRowCount(uint32_t count, unsigned flags = 2);
    bool SetColCount(uint32_t count, unsigned flags = 2);
    // Rows from `from` to `to`. `heights`, where it isn't null, has one for each and counts instead of
    // `height`. A size below 0 or above 32767 is ignored; 0 hides.
    void SetRowHeight(uint32_t from, uint32_t to, int32_t height, const int32_t* heights = nullptr,
                      unsigned flags = 2, int commandType = 0);
    void SetColWidth(uint32_t from, uint32_t to, int32_t width, const int32_t* widths = nullptr,
                     unsigned flags = 2, int commandType = 0);
    int32_t GetRowHeight(uint32_t row) const { return m_table.heights().size(row); }
    int32_t GetColWidth(uint32_t col) const { return m_table.widths().size(col); }

    // --- cells. Outside of the table writes are ignored, and reads give nothing.

    // Puts the attributes that the style has over those of the range. Whether any cell took it: read-only
    // ones refuse under the lock.
    bool SetStyleRange(const CGXRange& range, const CGXStyle& style, int modifyType = 0, int typeArgument = 0,
                       unsigned flags = 2);
    bool SetValueRange(const CGXRange& range, std::wstring_view text);
    // The value as text, unformatted; of a cell that is being edited, the text as it is then.
    CString GetValueRowCol(uint32_t row, uint32_t col) const;
    // Puts the cell's attributes into `style`, over what that has: with type 0 those of its own, else also
    // what it inherits. False outside of the table.
    bool GetStyleRowCol(uint32_t row, uint32_t col, CGXStyle& style, int modifyType = 2, int type = 0) const;
    // Takes the values of the range's cells; with `styles` their own styles altogether.
    void ClearCells(const CGXRange& range, bool styles);
    // Mode 0: no cells merge; any other: those that their style tells to.
    void SetMergeCellsMode(int mode, bool redraw);

    // --- showing

    // Stops or resumes painting; returns the previous setting. What changed meanwhile is shown at the end.
    bool LockUpdate(bool lock);
    bool IsLockUpdate() const { return m_locked; }
    // Shows everything anew, unless painting is stopped.
    void Redraw(unsigned flags = 2, bool createHint = true);

    // --- the current cell and the selection

    // Moves the current cell, scrolls it into view and selects it; tells nobody. False, with nothing changed,
    // for a column header and outside of the table.
    bool SetCurrentCell(uint32_t row, uint32_t col, unsigned flags = 10);
    // Row 0: there is none.
    CellPlace currentCell() const { return m_selection.current(); }
    const GridSelection& selection() const { return m_selection; }
    const GridTable& table() const { return m_table; }

  protected:
    // --- what a window does then

    virtual void cellsChanged(const CGXRange& /*range*/) {}
    // Counts or sizes changed.
    virtual void tableResized() {}
    // The current cell or the selection changed; `scroll`: it shall be in view.
    virtual void selectionMoved(bool /*scroll*/) {}

    // Tells cellsChanged now, or when painting resumes.
    void tellChanged(const CGXRange& range);
    void tellResized();

    // The cell that a person is editing, and its text as it is now.
    struct OpenCell {
        CellPlace at;
        CString text;
    };

    GridTable m_table;
    GridSelection m_selection;
    std::optional<OpenCell> m_open;

  private:
    void setSizes(TrackSizes& sizes, uint32_t from, uint32_t to, int32_t size, const int32_t* each);

    bool m_locked = false;
    bool m_changedWhileLocked = false;
};
