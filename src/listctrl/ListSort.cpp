#include "src/listctrl/ListSort.h"

#include "src/listctrl/ListCells.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

// Focus, selection, cut, drop mark, overlay and state image.
constexpr UINT TRAVELLING_STATES = 0xFF0F;
constexpr UINT ROW_FIELDS = LVIF_IMAGE | LVIF_STATE | LVIF_PARAM;

struct Column {
    std::vector<CString> texts;
    std::vector<int> images;
};

// All that goes with the rows, read once; column 0 has the images of the rows.
class Table {
  public:
    explicit Table(CListCtrl& list) : m_list(list), m_columns(columnCount(list)), m_rowCount(rowCount(list)) {
        CellReader reader(list);
        m_states.reserve(m_rowCount);
        m_data.reserve(m_rowCount);
        for (size_t column = 0; column < m_columns.size(); ++column) readColumn(reader, column);
    }

    const std::vector<CString>& texts(int column) const { return m_columns[column].texts; }

    // Gives the row the content that another one had at first. What is the same is left alone.
    void write(int row, int from) const {
        for (size_t column = 0; column < m_columns.size(); ++column) {
            const Column& cells = m_columns[column];
            LVITEMW item = itemAt(row, column);
            if (cells.texts[row] != cells.texts[from]) item.mask |= LVIF_TEXT;
            if (cells.images[row] != cells.images[from]) item.mask |= LVIF_IMAGE;
            if (column == 0 && m_states[row] != m_states[from]) item.mask |= LVIF_STATE;
            if (column == 0 && m_data[row] != m_data[from]) item.mask |= LVIF_PARAM;
            if (!item.mask) continue;
            item.pszText = const_cast<wchar_t*>(cells.texts[from].c_str());
            item.iImage = cells.images[from];
            item.state = m_states[from];
            item.lParam = m_data[from];
            m_list.setItem(item);
        }
    }

  private:
    static LVITEMW itemAt(int row, size_t column) {
        LVITEMW item{};
        item.iItem = row;
        item.iSubItem = static_cast<int>(column);
        item.stateMask = TRAVELLING_STATES;
        return item;
    }

    void readColumn(CellReader& reader, size_t column) {
        Column& cells = m_columns[column];
        cells.texts.reserve(m_rowCount);
        cells.images.reserve(m_rowCount);
        for (int row = 0; row < m_rowCount; ++row) {
            LVITEMW item = itemAt(row, column);
            item.mask = column == 0 ? ROW_FIELDS : LVIF_IMAGE;
            cells.texts.push_back(reader.read(item));
            cells.images.push_back(item.iImage);
            if (column > 0) continue;
            m_states.push_back(item.state);
            m_data.push_back(item.lParam);
        }
    }

    CListCtrl& m_list;
    std::vector<Column> m_columns;
    std::vector<UINT> m_states;
    std::vector<LPARAM> m_data;
    int m_rowCount;
};

}  // namespace

bool sortRows(CListCtrl& list, int column, bool ascending, const DistanceParser& parse) {
    if (column >= columnCount(list) || (list.GetStyle() & LVS_OWNERDATA)) return false;
    holdRedraw(list.m_hWnd);
    const Table table(list);
    const std::vector<int> order = sortedOrder(table.texts(column), ascending, parse);
    for (int row = 0; row < static_cast<int>(order.size()); ++row)
        if (order[row] != row) table.write(row, order[row]);
    return true;
}

void showSortDirection(const CWnd& list, int column, bool ascending) {
    const HWND header = headerOf(list);
    for (int at = 0; at < columnCount(list); ++at) {
        HDITEMW head{};
        head.mask = HDI_FORMAT;
        ::SendMessageW(header, HDM_GETITEMW, at, reinterpret_cast<LPARAM>(&head));
        const int before = head.fmt;
        head.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
        if (at == column) head.fmt |= ascending ? HDF_SORTUP : HDF_SORTDOWN;
        if (head.fmt != before) ::SendMessageW(header, HDM_SETITEMW, at, reinterpret_cast<LPARAM>(&head));
    }
}
