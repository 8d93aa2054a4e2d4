#include "src/tiles/WexComboBox.h"

#include "src/dialog/EventBridge.h"

IMPLEMENT_DYNAMIC(WexComboBox, CComboBox)

const MessageMap& WexComboBox::messageMap() const {
    static const MessageMap map(CComboBox::messageMap(),
                                {onReflected<CBN_SELCHANGE, &WexComboBox::onSelectionChanged>()});
    return map;
}

void WexComboBox::onSelectionChanged() {
    const auto selected = static_cast<int>(SendMessage(CB_GETCURSEL));
    publish(*this, std::to_wstring(selected), REASON_SELECTED, m_action);
}
