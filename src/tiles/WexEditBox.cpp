#include "src/tiles/WexEditBox.h"

#include <utility>

#include "src/dialog/EventBridge.h"

IMPLEMENT_DYNAMIC(WexEditBox, CEdit)

const MessageMap& WexEditBox::messageMap() const {
    static const MessageMap map(CEdit::messageMap(), {
                                                         onReflected<EN_SETFOCUS, &WexEditBox::onSetFocus>(),
                                                         onReflected<EN_KILLFOCUS, &WexEditBox::endOfEdit>(),
                                                     });
    return map;
}

void WexEditBox::onSetFocus() { m_focusPending = true; }

void WexEditBox::endOfEdit() {
    if (std::exchange(m_focusPending, false)) publish(*this, GetWindowText(), REASON_EDITED, m_action);
}
