#include "src/tiles/WexComboBox.h"

#include "src/dialog/EventBridge.h"
#include "src/dialog/WexDialog.h"

IMPLEMENT_DYNAMIC(WexComboBox, CComboBox)

namespace {

// Of edit boxes and push buttons, in dialog units.
constexpr LONG ROW_HEIGHT = 14;

}  // namespace

const MessageMap& WexComboBox::messageMap() const {
    static const MessageMap map(CComboBox::messageMap(),
                                {onReflected<CBN_SELCHANGE, &WexComboBox::onSelectionChanged>()});
    return map;
}

// By itself a closed combo box is as high as its font asks, which is less than what stands beside it.
void WexComboBox::discovered(WexDialog& dialog, CCtrlInfo&) {
    if ((GetStyle() & (CBS_DROPDOWN | CBS_DROPDOWNLIST)) == CBS_SIMPLE) return;
    RECT row{0, 0, 0, ROW_HEIGHT};
    MapDialogRect(dialog.m_hWnd, &row);
    const auto height = [this] {
        const RECT rect = GetWindowRect();
        return rect.bottom - rect.top;
    };
    if (height() >= row.bottom) return;
    constexpr auto closedPart = static_cast<WPARAM>(-1);
    // The height that is set is not the one that is asked for: what lies between them shows by setting it.
    const LRESULT text = SendMessage(CB_GETITEMHEIGHT, closedPart);
    SendMessage(CB_SETITEMHEIGHT, closedPart, text);
    SendMessage(CB_SETITEMHEIGHT, closedPart, text + row.bottom - height());
}

void WexComboBox::onSelectionChanged() {
    const auto selected = static_cast<int>(SendMessage(CB_GETCURSEL));
    publish(*this, std::to_wstring(selected), REASON_SELECTED, m_action);
}
