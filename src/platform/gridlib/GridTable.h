// A table of cells without a window: how many rows and columns, how large they are, what stands in the cells
// and how it looks, which cells read as one, and what a person changed. Portable.
//
// Row 0 is the row of column headers, column 0 the column of row headers; counts leave them out. A write
// outside of the table is ignored, a read there gives an empty style.
//
// A cell's style is its own over that of its row, its column, and the table.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "src/platform/gridlib/CGXGridParam.h"
#include "src/platform/gridlib/CGXRange.h"
#include "src/platform/gridlib/CGXStyle.h"
#include "src/platform/gridlib/CellPlace.h"
#include "src/platform/gridlib/CellStore.h"
#include "src/platform/gridlib/EditHistory.h"
#include "src/platform/gridlib/TrackSizes.h"

class GridTable {
  public:
    static constexpr uint32_t LARGEST_COUNT = 0x7FFFFFFE;
    // In pixels at 96 dots per inch.
    static constexpr int32_t DEFAULT_HEIGHT = 17;
    static constexpr int32_t DEFAULT_WIDTH = 72;

    CGXGridParam& param() { return m_param; }
    const CGXGridParam& param() const { return m_param; }

    // --- size

    // The number of the last row, the last column.
    uint32_t rowCount() const { return m_heights.count() - 1; }
    uint32_t colCount() const { return m_widths.count() - 1; }
    // What lies beyond is forgotten. False, with nothing changed, for a count above LARGEST_COUNT, which a
    // negative one is.
    bool setRowCount(uint32_t count);
    bool setColCount(uint32_t count);
    bool has(uint32_t row, uint32_t col) const { return row <= rowCount() && col <= colCount(); }
    // The range's cells that the table has; nothing where it has none.
    std::optional<CGXRange> within(const CGXRange& range) const;

    TrackSizes& heights() { return m_heights; }
    TrackSizes& widths() { return m_widths; }
    const TrackSizes& heights() const { return m_heights; }
    const TrackSizes& widths() const { return m_widths; }

    // --- cells

    CGXStyle ownStyle(uint32_t row, uint32_t col) const;
    // With what the cell inherits.
    CGXStyle style(uint32_t row, uint32_t col) const;
    // Cells with equal keys have the same style but for the value, until the table changes.
    struct LookKey {
        LookPool::Id own;
        const CGXStyle *ofRow, *ofColumn;
        bool isHeader;
        bool operator==(const LookKey&) const = default;
    };
    LookKey lookKey(uint32_t row, uint32_t col) const;
    std::wstring_view value(uint32_t row, uint32_t col) const;

    // Puts the style's attributes over those of the range: of cells, or of rows, columns or the table as
    // such. Read-only ones refuse it under the lock. Whether anything was written.
    bool apply(const CGXRange& range, const CGXStyle& style);
    // Takes the values from the range's cells, with `styles` their own styles altogether. Read-only cells
    // refuse it under the lock.
    void clear(const CGXRange& range, bool styles);

    // --- cells that read as one

    void setMerging(bool merging) { m_merging = merging; }
    bool isMerging() const { return m_merging; }
    // The cells that read as one with that cell, as far as they lie in `within`, in which the cell lies
    // itself. Neighbours with the same text, which isn't empty, merge along a row where both have that bit;
    // runs as wide as each other merge down where all their cells have that other bit.
    CGXRange merged(uint32_t row, uint32_t col, const CGXRange& within) const;
    CGXRange merged(uint32_t row, uint32_t col) const { return merged(row, col, CGXRange::ofTable()); }
    // The cells of that row that read as one with that cell.
    CGXRange run(uint32_t row, uint32_t col, const CGXRange& within) const;
    // Whether two runs, the second in the row below the first, read as one.
    bool joinsDown(const CGXRange& upper, const CGXRange& lower) const;

    // --- what a person does

    struct Entry {
        CellPlace at;
        CellText text;
    };
    // Writes the texts as one step. Returns the cells that changed, in order; `refused` gets those that take
    // no such text or can't be edited.
    std::vector<CellPlace> enter(const std::vector<Entry>& entries, std::vector<CellPlace>& refused);
    // Takes the last step back, or does it again. A cell that a program has changed since, or that can no
    // longer be edited, stays as it is. Returns the cells that changed.
    std::vector<CellPlace> undo();
    std::vector<CellPlace> redo();
    bool canUndo() const { return m_history.hasBack(); }
    bool canRedo() const { return m_history.hasForward(); }

  private:
    template <class Visit>
    void inherited(uint32_t row, uint32_t col, Visit visit) const;
    template <class Value>
    Value attribute(uint32_t row, uint32_t col, std::optional<Value> CellLook::*which, Value otherwise) const;
    bool refuses(uint32_t row, uint32_t col) const;
    bool mergesAlongRow(uint32_t row, uint32_t col) const;
    bool mergesDown(const CGXRange& run) const;
    void write(CellPlace at, const CellText& text);
    std::vector<CellPlace> play(const EditHistory::Step* step, bool back);

    CGXGridParam m_param;
    TrackSizes m_heights{DEFAULT_HEIGHT};
    TrackSizes m_widths{DEFAULT_WIDTH};
    CellStore m_cells;
    CGXStyle m_tableStyle;
    std::map<uint32_t, CGXStyle> m_rowStyles;
    std::map<uint32_t, CGXStyle> m_colStyles;
    bool m_merging = false;
    EditHistory m_history;
};
