#include "src/tiles/WexListBox.h"

#include <vector>

#include "src/dialog/EventBridge.h"
#include "src/dialog/Pressable.h"
#include "src/dialog/SelectionText.h"

IMPLEMENT_DYNAMIC(WexListBox, CListBox)

const MessageMap& WexListBox::messageMap() const {
    static const MessageMap map(CListBox::messageMap(),
                                {
                                    onReflected<LBN_SELCHANGE, &WexListBox::onSelectionChanged>(),
                                    on<WM_LBUTTONDBLCLK, &WexListBox::onDoubleClick>(),
                                });
    return map;
}

void WexListBox::applyRecord(CCtrlInfo& tile) {
    TileControl::applyRecord(tile);
    m_dblClickEnabled = tile.m_dblClickEnabled;
}

void WexListBox::onSelectionChanged() {
    const auto count = static_cast<int>(SendMessage(LB_GETSELCOUNT));
    if (count == LB_ERR) {
        const auto selected = static_cast<int>(SendMessage(LB_GETCURSEL));
        if (selected >= 0) publish(*this, std::to_wstring(selected), REASON_SELECTED, m_action);
        return;
    }
    std::vector<int> indexes(count);
    SendMessage(LB_GETSELITEMS, count, reinterpret_cast<LPARAM>(indexes.data()));
    publish(*this, selectionText(indexes), REASON_SELECTED, m_action);
}

bool WexListBox::hasSelection() const {
    const auto count = static_cast<int>(SendMessage(LB_GETSELCOUNT));
    return count >= 1 || (count == LB_ERR && SendMessage(LB_GETCURSEL) >= 0);
}

// OK is pressed before the control sees the second click, which could change the selection.
void WexListBox::onDoubleClick(UINT /*keys*/, POINT /*at*/) {
    if (m_dblClickEnabled) pressOk();
    if (isLive()) Default();
}

void WexListBox::pressOk() {
    const CWnd* parent = GetParent();
    CWnd* ok = parent ? parent->GetDlgItem(IDOK) : nullptr;
    if (!ok) return;
    // kept: without a selection OK is disabled until Lisp enables it.
    if (!hasSelection())
        ok->EnableWindow(false);
    else if (auto* button = dynamic_cast<Pressable*>(ok))
        button->click();
}
