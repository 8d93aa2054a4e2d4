#include "src/listctrl/ListColumns.h"

#include <iterator>

#include "src/listctrl/ColumnText.h"
#include "src/listctrl/ListCells.h"
#include "src/platform/mfc/RedrawHold.h"

void insertColumn(const CWnd& list, int index, const CString& title, int width) {
    holdRedraw(list.m_hWnd);
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH;
    column.fmt = LVCFMT_LEFT;
    column.cx = width;
    column.pszText = const_cast<wchar_t*>(title.c_str());
    list.SendMessage(LVM_INSERTCOLUMNW, index, reinterpret_cast<LPARAM>(&column));
}

bool deleteColumn(const CWnd& list, int column) {
    holdRedraw(list.m_hWnd);
    return list.SendMessage(LVM_DELETECOLUMN, column);
}

void applyColumnText(const CWnd& list, const CString& text) {
    if (columnCount(list) > 0) return;
    const auto widthOf = [&](const CString& title) {
        return static_cast<int>(
            list.SendMessage(LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(title.c_str())));
    };
    int index = 0;
    for (const ListColumn& column : columnsFromText(text, widthOf))
        insertColumn(list, index++, column.title, column.width);
}

bool renameColumn(const CWnd& list, int column, const CString& title) {
    const HWND header = headerOf(list);
    wchar_t text[256] = {};
    HDITEMW item = {};
    item.mask = HDI_TEXT | HDI_IMAGE;
    item.pszText = text;
    item.cchTextMax = static_cast<int>(std::size(text));
    const auto parameter = reinterpret_cast<LPARAM>(&item);
    if (!SendMessageW(header, HDM_GETITEMW, column, parameter)) return false;
    item.pszText = text;
    lstrcpynW(text, title.c_str(), static_cast<int>(std::size(text)));
    return SendMessageW(header, HDM_SETITEMW, column, parameter);
}

void fitColumns(const CWnd& list) {
    // Room for the mark of a sorted column, too.
    const int besideTitle = GetSystemMetrics(SM_CXSMICON) + 4 * GetSystemMetrics(SM_CXEDGE);
    for (int column = 0; column < columnCount(list); ++column) {
        list.SendMessage(LVM_SETCOLUMNWIDTH, column, LVSCW_AUTOSIZE);
        const int cells = static_cast<int>(list.SendMessage(LVM_GETCOLUMNWIDTH, column));
        const CString title = columnTitle(list, column);
        const int head = besideTitle + static_cast<int>(list.SendMessage(
                                           LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(title.c_str())));
        if (cells < head) list.SendMessage(LVM_SETCOLUMNWIDTH, column, head);
    }
}
