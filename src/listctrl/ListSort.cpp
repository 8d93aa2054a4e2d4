#include "src/listctrl/ListSort.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "src/listctrl/ListCells.h"
#include "src/platform/mfc/RedrawHold.h"

namespace {

// What a sort reads of the rows, in one pass: the texts of its column and the item data.
class ReadRows {
  public:
    ReadRows(CListCtrl& list, int column) {
        const int count = rowCount(list);
        CellReader reader(list);
        std::vector<size_t> ends;
        for (int row = 0; row < count; ++row) {
            LVITEMW item{};
            item.mask = LVIF_PARAM;
            item.iItem = row;
            item.iSubItem = column;
            (m_texts += reader.read(item)) += L'\0';
            ends.push_back(m_texts.size() - 1);
            data.push_back(item.lParam);
        }
        size_t begin = 0;
        for (const size_t end : ends) {
            cells.emplace_back(&m_texts[begin], end - begin);
            begin = end + 1;
        }
    }

    std::vector<std::wstring_view> cells;  // each with a zero behind it
    std::vector<LPARAM> data;

  private:
    std::wstring m_texts;
};

// The item data of the rows while the control sorts them by it: a number of its own for each row.
class RowNumbers {
  public:
    RowNumbers(CListCtrl& list, const std::vector<LPARAM>& data) : m_list(list), m_data(data) {}

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
    const std::vector<LPARAM>& m_data;
    LPARAM m_least = 0;
    std::vector<int> m_ranks;  // by number, from the least one on; -1 for a number that no row has
};

}  // namespace

bool sortRows(CListCtrl& list, int column, bool ascending, const DistanceParser& parse) {
    if (column >= columnCount(list) || (list.GetStyle() & LVS_OWNERDATA)) return false;
    const ReadRows rows(list, column);
    const std::vector<int> order = sortedOrder(rows.cells, ascending, parse);
    if (std::is_sorted(order.begin(), order.end())) return true;
    holdRedraw(list.m_hWnd);
    RowNumbers(list, rows.data).sort(order);
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
