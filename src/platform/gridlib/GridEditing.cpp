// Editing in a grid's window: the open cell, and changes of many cells at a time.
#include <algorithm>

#include "src/platform/gridlib/CGXGridWnd.h"
#include "src/platform/gridlib/CellKind.h"

bool CGXGridWnd::isEditableAt(CellPlace at) const {
    return at.row > 0 && m_table.has(at.row, at.col) && isEditable(m_table.style(at.row, at.col));
}

bool CGXGridWnd::startEditing(bool byTyping) {
    if (m_open) return true;
    const CellPlace at = m_selection.current();
    if (!isEditableAt(at) || cellKind(m_table.style(at.row, at.col)) == CellKind::check) return false;
    if (!OnStartEditing(at.row, at.col) || !isLive() || !isEditableAt(at)) return false;
    m_rows.reveal(at.row);
    m_cols.reveal(at.col);
    const CString text(m_table.value(at.row, at.col));
    if (!m_editor.open(m_hWnd, m_table.style(at.row, at.col), text, byTyping)) return false;
    m_open = OpenCell{at, text};
    m_textBefore = m_textToldLast = text;
    m_refused.clear();
    placeEditor();
    settleLater();
    return m_open.has_value();
}

// The editor stands on the cell, the lines around it left out.
void CGXGridWnd::placeEditor() {
    if (!m_open) return;
    RECT rect = shownCell(scene(), m_open->at).rect;
    rect.right -= 1;
    rect.bottom -= 1;
    const RECT client = GetClientRect();
    RECT shown;
    const bool inView = m_open->at.row <= m_rows.lastInView() && IntersectRect(&shown, &rect, &client);
    // What is scrolled out of view is no longer edited: nobody would see what is typed.
    if (inView)
        m_editor.place(shown);
    else
        closeEditor(End::take);
}

// A program changed the cell that is open, or the table around it.
void CGXGridWnd::refreshOpenCell() {
    const CellPlace at = m_open->at;
    const CString text(m_table.value(at.row, at.col));
    if (!isEditableAt(at)) {
        // The program knows, as it is at work: it isn't told.
        m_textToldLast = text;
        return closeEditor(End::giveUp);
    }
    if (text == m_textBefore) return;
    m_textBefore = m_textToldLast = m_open->text = text;
    m_editor.setText(text);
}

void CGXGridWnd::editorChanged() {
    if (!m_open) return;
    CString text = m_editor.text();
    if (text == m_open->text) return;
    m_open->text = m_textToldLast = std::move(text);
    tellModified(m_open->at);
}

// The cell's text as the table has it and as the last event told it may differ then: who refuses or gives up
// tells once more.
void CGXGridWnd::closeEditor(End end) {
    if (!m_open) return;
    const OpenCell open = *std::exchange(m_open, std::nullopt);
    const bool hadFocus = m_editor.owns(::GetFocus());
    m_editor.close();
    if (hadFocus) ::SetFocus(m_hWnd);
    // What wasn't changed is taken as it is, also where it wouldn't be accepted now.
    if (end == End::take && open.text != m_textBefore) {
        std::vector<CellPlace> refused;
        m_table.enter(entriesFor(open.at, CellText(open.text)), refused);
        if (!refused.empty()) MessageBeep(MB_ICONWARNING);
    }
    invalidateAll();
    if (end == End::giveUp) OnCancelEditing(open.at.row, open.at.col);
    if (m_table.value(open.at.row, open.at.col) != m_textToldLast) tellModified(open.at);
}

void CGXGridWnd::editorEnds(CellEditor::Ending ending) {
    using Ending = CellEditor::Ending;
    closeEditor(ending == Ending::giveUp ? End::giveUp : End::take);
    if (!isLive()) return;
    const CellPlace at = m_selection.current();
    switch (ending) {
        case Ending::down:
            moveTo(neighbour(at, VK_DOWN, false), false);
            break;
        case Ending::up:
            moveTo(neighbour(at, VK_UP, false), false);
            break;
        case Ending::left:
        case Ending::previous:
            moveTo(neighbour(at, VK_LEFT, false), false);
            break;
        case Ending::right:
        case Ending::next:
            moveTo(neighbour(at, VK_RIGHT, false), false);
            break;
        case Ending::stay:
        case Ending::giveUp:
            break;
    }
}

// Cells that read as one get the text together, so that they still do.
std::vector<GridTable::Entry> CGXGridWnd::entriesFor(CellPlace at, const CellText& text) const {
    std::vector<GridTable::Entry> entries;
    const CGXRange merged = m_table.merged(at.row, at.col);
    for (uint32_t row = merged.top; row <= merged.bottom; ++row)
        for (uint32_t col = merged.left; col <= merged.right; ++col) entries.push_back({{row, col}, text});
    return entries;
}

// The events come when the table is settled, in the order of the cells. Each may end the dialog.
void CGXGridWnd::tellModified(const std::vector<CellPlace>& changed) {
    invalidateAll();
    for (const CellPlace& at : changed) {
        tellModified(at);
        if (!isLive()) return;
    }
}

void CGXGridWnd::tellModified(CellPlace at) {
    noticeValue(at);
    OnModifyCell(at.row, at.col);
}

void CGXGridWnd::toggle(CellPlace at) {
    const CGXStyle style = m_table.style(at.row, at.col);
    m_refused.clear();
    std::vector<CellPlace> refused;
    const CellText text(tickText(style, !isTicked(style)));
    auto changed = m_table.enter(entriesFor(at, text), refused);
    if (changed.size() > 1) changed.resize(1);
    tellModified(changed);
}

void CGXGridWnd::emptySelection() {
    std::vector<GridTable::Entry> entries;
    for (const CGXRange& range : m_selection.ranges()) {
        const auto cells = m_table.within(range);
        if (!cells) continue;
        if (cells->cellCount() > MOST_CELLS) return OnTooManyCells();
        for (uint32_t row = cells->top; row <= cells->bottom; ++row)
            for (uint32_t col = cells->left; col <= cells->right; ++col) {
                const CGXStyle style = m_table.style(row, col);
                const bool ticks = cellKind(style) == CellKind::check;
                if (isEditableAt({row, col}))
                    entries.push_back({{row, col}, CellText(ticks ? tickText(style, false) : L"")});
            }
    }
    // Ranges may have been selected in any order.
    std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) { return a.at < b.at; });
    m_refused.clear();
    std::vector<CellPlace> refused;
    tellModified(m_table.enter(entries, refused));
}

void CGXGridWnd::undoOrRedo(bool undo) {
    m_refused.clear();
    tellModified(undo ? m_table.undo() : m_table.redo());
}
