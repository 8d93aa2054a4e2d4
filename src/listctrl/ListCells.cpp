#include "src/listctrl/ListCells.h"

#include <iterator>

HWND headerOf(const CWnd& list) { return reinterpret_cast<HWND>(list.SendMessage(LVM_GETHEADER)); }

int columnCount(const CWnd& list) {
    const HWND header = headerOf(list);
    return header ? static_cast<int>(::SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)) : 0;
}

int rowCount(const CWnd& list) { return static_cast<int>(list.sendStraight(LVM_GETITEMCOUNT)); }

CString columnTitle(const CWnd& list, int column) {
    wchar_t title[256] = {};
    HDITEMW head{};
    head.mask = HDI_TEXT;
    head.pszText = title;
    head.cchTextMax = static_cast<int>(std::size(title));
    ::SendMessageW(headerOf(list), HDM_GETITEMW, column, reinterpret_cast<LPARAM>(&head));
    return title;
}

std::wstring_view CellReader::read(LVITEMW& item) {
    item.mask |= LVIF_TEXT;
    for (;;) {
        item.pszText = m_buffer.data();
        item.cchTextMax = static_cast<int>(m_buffer.size());
        m_buffer[0] = L'\0';
        m_list.getItem(item);
        // The list may give the text in a place of its own.
        const std::wstring_view text = item.pszText ? item.pszText : L"";
        if (text.size() + 1 < m_buffer.size()) return text;
        m_buffer.resize(2 * m_buffer.size());
    }
}

CString CellReader::text(int row, int column) {
    LVITEMW item{};
    item.iItem = row;
    item.iSubItem = column;
    return CString(read(item));
}
