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
    // What stands around the height that is set, which only setting it shows. Under Wine that costs as much
    // as to make the box, so what the last box had is tried first.
    static LONG around = 0;
    for (int attempt = 0; attempt < 2 && height() != row.bottom; ++attempt) {
        const LONG set = row.bottom - around;
        SendMessage(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), set);
        around = height() - set;
    }
}

void WexComboBox::onSelectionChanged() {
    const auto selected = static_cast<int>(SendMessage(CB_GETCURSEL));
    publish(*this, std::to_wstring(selected), REASON_SELECTED, m_action);
}
