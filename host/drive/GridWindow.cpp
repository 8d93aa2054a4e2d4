#include "host/drive/GridWindow.h"

#include "host/drive/WindowClass.h"

template <class Record>
bool GridWindow::ask(GridQuestion question, Record& record) const {
    static const UINT message = RegisterWindowMessageW(GRID_QUERY_MESSAGE);
    return SendMessageW(m_window, message, static_cast<WPARAM>(question),
                        reinterpret_cast<LPARAM>(&record)) == 1;
}

GridTableLook GridWindow::table() const {
    GridTableLook table;
    ask(GridQuestion::Table, table);
    return table;
}

void GridWindow::select(GridTableLook wanted) const { ask(GridQuestion::Select, wanted); }

std::optional<GridCellLook> GridWindow::cell(GridPlace place) const {
    GridCellLook cell;
    cell.at = place;
    if (!ask(GridQuestion::Cell, cell)) return std::nullopt;
    return cell;
}

std::optional<GridHit> GridWindow::hit(POINT at) const {
    GridHit found;
    found.x = at.x;
    found.y = at.y;
    if (!ask(GridQuestion::Hit, found)) return std::nullopt;
    return found;
}

std::optional<Spot> GridWindow::spotOf(GridPlace place) const {
    const auto found = cell(place);
    if (!found || found->rect.width() <= 0 || found->rect.height() <= 0) return std::nullopt;
    const PixelRect& rect = found->rect;
    return Spot{m_window, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}};
}

std::optional<Spot> GridWindow::bringIntoView(GridPlace place) const {
    if (!ask(GridQuestion::Show, place)) return std::nullopt;
    return spotOf(place);
}

std::optional<GridWindow> gridOf(HWND control) {
    if (!hasWindowClass(control, GRID_WINDOW_CLASS)) return std::nullopt;
    return GridWindow(control);
}
