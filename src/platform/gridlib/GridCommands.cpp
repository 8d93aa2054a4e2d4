// What keys and menus have done to a grid.
#include "src/platform/gridlib/CGXGridWnd.h"

bool CGXGridWnd::canDo(Command command) const {
    const auto cells = copied();
    switch (command) {
        case Command::cut:
            return cells && isEditableAt({cells->top, cells->left});
        case Command::copy:
            return cells.has_value();
        case Command::paste:
            return cells && IsClipboardFormatAvailable(CF_UNICODETEXT);
        case Command::undo:
            return m_table.canUndo();
        case Command::redo:
            return m_table.canRedo();
        case Command::selectAll:
            return GetRowCount() > 0;
        case Command::fitColumns:
            return GetColCount() > 0;
    }
    return false;
}

void CGXGridWnd::doCommand(Command command) {
    switch (command) {
        case Command::cut:
            if (copy()) emptySelection();
            break;
        case Command::copy:
            copy();
            break;
        case Command::paste:
            paste();
            break;
        case Command::undo:
        case Command::redo:
            undoOrRedo(command == Command::undo);
            break;
        case Command::selectAll:
            m_selection.all();
            selectionMoved(false);
            tellSelection(false, true);
            break;
        case Command::fitColumns:
            for (uint32_t col = 0; col <= GetColCount(); ++col)
                if (m_table.widths().size(col) > 0) fitColumn(col);
            break;
    }
}

RECT CGXGridWnd::currentCellRect() const {
    return m_selection.hasCurrent() ? shownCell(scene(), m_selection.current()).rect : RECT{};
}
