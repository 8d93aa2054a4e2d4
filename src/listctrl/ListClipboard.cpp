#include "src/listctrl/ListClipboard.h"

#include <cstring>

#include "src/listctrl/ListCells.h"
#include "src/listctrl/RowSelection.h"
#include "src/listctrl/TableText.h"

namespace {

// The clipboard's memory for a text; null where there is none.
HGLOBAL clipboardMemory(const CString& text) {
    const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (void* to = memory ? GlobalLock(memory) : nullptr) {
        std::memcpy(to, text.c_str(), bytes);
        GlobalUnlock(memory);
    }
    return memory;
}

void putOnClipboard(HWND owner, const CString& text) {
    if (!OpenClipboard(owner)) return;
    EmptyClipboard();
    const HGLOBAL memory = clipboardMemory(text);
    if (memory && !SetClipboardData(CF_UNICODETEXT, memory)) GlobalFree(memory);
    CloseClipboard();
}

}  // namespace

void copySelectedRows(CListCtrl& list, bool withTitles) {
    const std::vector<int> selected = selectedRows(list);
    const int columns = columnCount(list);
    if (selected.empty() || columns == 0) return;
    std::vector<CStringArray> rows;
    if (withTitles) rows.emplace_back();
    for (int column = 0; withTitles && column < columns; ++column)
        rows[0].push_back(columnTitle(list, column));
    CellReader reader(list);
    for (const int row : selected) {
        CStringArray& cells = rows.emplace_back();
        for (int column = 0; column < columns; ++column) cells.push_back(reader.text(row, column));
    }
    putOnClipboard(list.m_hWnd, tableText(rows));
}
