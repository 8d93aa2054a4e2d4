#include "src/listctrl/ListSort.h"

#include <algorithm>

#include "src/listctrl/ListCells.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

// The item data of the rows while the control sorts them by it: a number of its own for each row.
class RowNumbers {
  public:
    explicit RowNumbers(CListCtrl& list) : m_list(list), m_data(rowCount(list)) {
        LVITEMW item{};
        item.mask = LVIF_PARAM;
        for (; item.iItem < static_cast<int>(m_data.size()); ++item.iItem) {
            m_list.getItem(item);
            m_data[item.iItem] = item.lParam;
        }
    }

    // Row `order[at]` goes to place `at`. All that a row has moves with it.
    void sort(const std::vector<int>& order) {
        const bool numbered = rank(order, m_data);
        if (!numbered) {
            std::vector<LPARAM> places(m_data.size());
            for (size_t row = 0; row < places.size(); ++row) write(row, places[row] = LPARAM(row));
            rank(order, places);
        }
        m_list.sendStraight(LVM_SORTITEMS, reinterpret_cast<WPARAM>(this),
                            reinterpret_cast<LPARAM>(&compare));
        if (numbered) return;
        for (size_t row = 0; row < order.size(); ++row) write(row, m_data[order[row]]);
    }

  private:
    static int CALLBACK compare(LPARAM a, LPARAM b, LPARAM numbers) {
        const auto& self = *reinterpret_cast<const RowNumbers*>(numbers);
        return self.m_ranks[a - self.m_least] - self.m_ranks[b - self.m_least];
    }

    // Finds the place of each row by its number. False where two rows have the same one, or where the numbers
    // lie so far apart that a table of them would be large.
    bool rank(const std::vector<int>& order, const std::vector<LPARAM>& numbers) {
        const auto [least, most] = std::minmax_element(numbers.begin(), numbers.end());
        m_least = *least;
        const auto range = static_cast<size_t>(*most) - static_cast<size_t>(m_least);
        if (range > 16 * numbers.size() + 65536) return false;
        m_ranks.assign(range + 1, -1);
        for (size_t place = 0; place < order.size(); ++place) {
            int& rank = m_ranks[numbers[order[place]] - m_least];
            if (rank >= 0) return false;
            rank = static_cast<int>(place);
        }
        return true;
    }

    void write(size_t row, LPARAM data) const {
        LVITEMW item{};
        item.mask = LVIF_PARAM;
        item.iItem = static_cast<int>(row);
        item.lParam = data;
        m_list.setItem(item);
    }

    CListCtrl& m_list;
    std::vector<LPARAM> m_data;
    LPARAM m_least = 0;
    std::vector<int> m_ranks;  // by number, from the least one on; -1 for a number that no row has
};

std::vector<CString> textsOf(CListCtrl& list, int column) {
    CellReader reader(list);
    std::vector<CString> texts(rowCount(list));
    for (size_t row = 0; row < texts.size(); ++row) texts[row] = reader.text(static_cast<int>(row), column);
    return texts;
}

}  // namespace

bool sortRows(CListCtrl& list, int column, bool ascending, const DistanceParser& parse) {
    if (column >= columnCount(list) || (list.GetStyle() & LVS_OWNERDATA)) return false;
    const std::vector<int> order = sortedOrder(textsOf(list, column), ascending, parse);
    if (std::is_sorted(order.begin(), order.end())) return true;
    holdRedraw(list.m_hWnd);
    RowNumbers(list).sort(order);
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
