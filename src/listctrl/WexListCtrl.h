// A list control: a table with a header, which selects whole rows and shows them selected without the focus.
#pragma once

#include "src/dialog/RowSource.h"
#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"

class WexListCtrl : public CListCtrl, public TileControl {
    DECLARE_DYNAMIC(WexListCtrl)

  public:
    CString m_columnRef;      // the last column text that was given
    int32_t m_sortState = 0;  // column + 1 after sorting up, -(column + 1) after sorting down
    int32_t m_lastRow = -1;   // clicked or selected last
    bool m_allowSorting = false;
    bool m_enableDblClk = true;
    bool m_keepHighlight = true;
    RowSource* m_dataSource = nullptr;  // shown instead of items; not owned

    CWnd& wnd() override { return *this; }
    void discovered(WexDialog& dialog, CCtrlInfo& tile) override;
    void applyRecord(CCtrlInfo& tile) override;
    CString value() override;

    // Shows the rows of the source, of a list that has none of its own by its style.
    void bindTo(RowSource& source);
    // What a click on a column's head does where sorting is allowed: up at first, and down if the column was
    // sorted up last.
    void sortBy(int column);

    bool PreTranslateMessage(MSG& message) override;

  protected:
    const MessageMap& messageMap() const override;

  private:
    void onGetDispInfo(NMHDR* header);
    LRESULT onFindItem(NMHDR* header);

    // --- mouse and keys (ListEvents.cpp)

    bool pressRow(POINT at);
    void onLeftDown(UINT keys, POINT at);
    void onRightDown(UINT keys, POINT at);
    void onLeftDoubleClick(UINT keys, POINT at);
    void onDoubleClick(NMHDR* header);
    // Filling and sorting send these in numbers, and the dialog would spend longer on them than the list
    // does.
    void onItemChange(NMHDR* /*header*/) {}
    void onColumnClick(NMHDR* header);
    LRESULT onDeleteAll(WPARAM w, LPARAM l);
    bool hasClickableHeads() const;
    void onKeyDown(UINT key, UINT flags);
    void onChar(UINT character, UINT flags);
    void onKillFocus(CWnd* to);

    // --- ListMenu.cpp
    LRESULT onContextMenu(WPARAM w, LPARAM l);
    RECT focusedRowRect() const;

    void noteArrow(WPARAM key);
    void pressOk();
};

// Whether that list stands in the dialog whose list shows the rows of g_rowSource.
bool showsRecords(const CWnd& list);
