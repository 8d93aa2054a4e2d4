#include "src/platform/gridlib/GridTable.h"

#include <algorithm>

#include "src/platform/gridlib/CellKind.h"

bool GridTable::setRowCount(uint32_t count) {
    if (count > LARGEST_COUNT) return false;
    if (count < rowCount()) {
        m_cells.dropRows(count + 1);
        m_rowStyles.erase(m_rowStyles.upper_bound(count), m_rowStyles.end());
    }
    m_heights.setCount(count + 1);
    return true;
}

bool GridTable::setColCount(uint32_t count) {
    if (count > LARGEST_COUNT) return false;
    if (count < colCount()) {
        m_cells.dropColumns(count + 1);
        m_colStyles.erase(m_colStyles.upper_bound(count), m_colStyles.end());
    }
    m_widths.setCount(count + 1);
    return true;
}

std::optional<CGXRange> GridTable::within(const CGXRange& range) const {
    if (!has(range.top, range.left)) return std::nullopt;
    CGXRange cut = range;
    cut.bottom = std::min(range.bottom, rowCount());
    cut.right = std::min(range.right, colCount());
    return cut;
}

// Calls visit(style) for what the cell inherits, nearest first, until it returns true.
template <class Visit>
void GridTable::inherited(uint32_t row, uint32_t col, Visit visit) const {
    static const CGXStyle header = CGXStyle().SetControl(CONTROL_HEADER);
    if (!m_rowStyles.empty())
        if (const auto at = m_rowStyles.find(row); at != m_rowStyles.end() && visit(at->second)) return;
    if (!m_colStyles.empty())
        if (const auto at = m_colStyles.find(col); at != m_colStyles.end() && visit(at->second)) return;
    if ((row == 0 || col == 0) && visit(header)) return;
    visit(m_tableStyle);
}

template <class Value>
Value GridTable::attribute(uint32_t row, uint32_t col, std::optional<Value> CellLook::*which,
                           Value otherwise) const {
    std::optional<Value> found = m_cells.look(row, col).*which;
    if (!found)
        inherited(row, col, [&](const CGXStyle& style) { return (found = style.look().*which).has_value(); });
    return found.value_or(otherwise);
}

CGXStyle GridTable::ownStyle(uint32_t row, uint32_t col) const {
    return has(row, col) ? CGXStyle(m_cells.look(row, col), m_cells.text(row, col)) : CGXStyle();
}

CGXStyle GridTable::style(uint32_t row, uint32_t col) const {
    if (!has(row, col)) return CGXStyle();
    CGXStyle own = ownStyle(row, col);
    inherited(row, col, [&](const CGXStyle& style) {
        CGXStyle under = style;
        under.apply(own);
        own = std::move(under);
        return false;
    });
    return own;
}

GridTable::LookKey GridTable::lookKey(uint32_t row, uint32_t col) const {
    const auto find = [](const std::map<uint32_t, CGXStyle>& styles, uint32_t at) {
        const auto found = styles.empty() ? styles.end() : styles.find(at);
        return found == styles.end() ? nullptr : &found->second;
    };
    return {m_cells.lookId(row, col), find(m_rowStyles, row), find(m_colStyles, col), row == 0 || col == 0};
}

std::wstring_view GridTable::value(uint32_t row, uint32_t col) const {
    if (!has(row, col)) return {};
    if (m_cells.look(row, col).hasValue) return m_cells.text(row, col).view();
    std::wstring_view found;
    inherited(row, col, [&](const CGXStyle& style) {
        found = style.value().view();
        return style.hasValue();
    });
    return found;
}

bool GridTable::refuses(uint32_t row, uint32_t col) const {
    return m_param.IsLockReadOnly() && attribute(row, col, &CellLook::readOnly, false);
}

bool GridTable::apply(const CGXRange& range, const CGXStyle& style) {
    const auto cut = within(range);
    if (!cut || style.isEmpty()) return false;
    bool written = false;
    const auto applyTo = [&](CGXStyle& target) {
        if (m_param.IsLockReadOnly() && target.look().readOnly.value_or(false)) return;
        target.apply(style);
        written = true;
    };
    switch (range.kind) {
        case CGXRange::cells:
            for (uint32_t row = cut->top; row <= cut->bottom; ++row)
                for (uint32_t col = cut->left; col <= cut->right; ++col) {
                    if (refuses(row, col)) continue;
                    m_cells.apply(row, col, style);
                    written = true;
                }
            break;
        case CGXRange::rows:
            for (uint32_t row = cut->top; row <= cut->bottom; ++row) applyTo(m_rowStyles[row]);
            break;
        case CGXRange::columns:
            for (uint32_t col = cut->left; col <= cut->right; ++col) applyTo(m_colStyles[col]);
            break;
        case CGXRange::table:
            applyTo(m_tableStyle);
            break;
    }
    return written;
}

void GridTable::clear(const CGXRange& range, bool styles) {
    m_cells.clear(range.top, range.left, range.bottom, range.right, styles,
                  [this](uint32_t row, uint32_t col) { return !refuses(row, col); });
}

bool GridTable::mergesAlongRow(uint32_t row, uint32_t col) const {
    return attribute(row, col, &CellLook::merge, uint8_t{MERGE_NOT}) & MERGE_ALONG_ROW;
}

CGXRange GridTable::run(uint32_t row, uint32_t col, const CGXRange& within) const {
    CGXRange run(row, col);
    const std::wstring_view text = value(row, col);
    if (text.empty() || !mergesAlongRow(row, col)) return run;
    const auto joins = [&](uint32_t other) {
        return mergesAlongRow(row, other) && value(row, other) == text;
    };
    while (run.left > within.left && joins(run.left - 1)) --run.left;
    while (run.right < std::min(within.right, colCount()) && joins(run.right + 1)) ++run.right;
    return run;
}

bool GridTable::mergesDown(const CGXRange& run) const {
    for (uint32_t col = run.left; col <= run.right; ++col)
        if (!(attribute(run.top, col, &CellLook::merge, uint8_t{MERGE_NOT}) & MERGE_DOWN_COLUMN))
            return false;
    return true;
}

bool GridTable::joinsDown(const CGXRange& upper, const CGXRange& lower) const {
    if (upper.left != lower.left || upper.right != lower.right) return false;
    const std::wstring_view text = value(upper.top, upper.left);
    return !text.empty() && value(lower.top, lower.left) == text && mergesDown(upper) && mergesDown(lower);
}

CGXRange GridTable::merged(uint32_t row, uint32_t col, const CGXRange& within) const {
    if (!m_merging || !has(row, col)) return CGXRange(row, col);
    const CGXRange own = run(row, col, within);
    CGXRange all = own;
    const std::wstring_view text = value(row, col);
    if (text.empty() || !mergesDown(own)) return all;
    const auto joins = [&](uint32_t other) {
        return value(other, own.left) == text && joinsDown(own, run(other, own.left, within));
    };
    // The row of headers merges with no data.
    const uint32_t first = row == 0 ? 0 : std::max(within.top, 1u);
    const uint32_t last = row == 0 ? 0 : std::min(within.bottom, rowCount());
    while (all.top > first && joins(all.top - 1)) --all.top;
    while (all.bottom < last && joins(all.bottom + 1)) ++all.bottom;
    return all;
}

void GridTable::write(CellPlace at, const CellText& text) {
    m_cells.apply(at.row, at.col, CGXStyle().SetValue(text));
}

std::vector<CellPlace> GridTable::enter(const std::vector<Entry>& entries, std::vector<CellPlace>& refused) {
    std::vector<CellPlace> changed;
    EditHistory::Step step;
    for (const auto& [at, text] : entries) {
        if (!accepts(style(at.row, at.col), text.view()) || !has(at.row, at.col)) {
            refused.push_back(at);
            continue;
        }
        const CellText before(value(at.row, at.col));
        if (before == text) continue;
        write(at, text);
        changed.push_back(at);
        step.push_back({at.row, at.col, before, text});
    }
    if (m_param.IsEnableUndo()) m_history.record(std::move(step));
    return changed;
}

std::vector<CellPlace> GridTable::play(const EditHistory::Step* step, bool back) {
    std::vector<CellPlace> changed;
    if (!step) return changed;
    for (const EditHistory::Change& change : *step) {
        const CellText& from = back ? change.after : change.before;
        const CellText& to = back ? change.before : change.after;
        const bool same = value(change.row, change.col) == from.view();
        if (!same || !has(change.row, change.col) || !isEditable(style(change.row, change.col))) continue;
        write({change.row, change.col}, to);
        changed.push_back({change.row, change.col});
    }
    return changed;
}

std::vector<CellPlace> GridTable::undo() {
    return m_param.IsEnableUndo() ? play(m_history.back(), true) : std::vector<CellPlace>();
}

std::vector<CellPlace> GridTable::redo() {
    return m_param.IsEnableUndo() ? play(m_history.forward(), false) : std::vector<CellPlace>();
}
