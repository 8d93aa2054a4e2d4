#include "src/tiles/WexButtonSt.h"

#include "src/dialog/EventBridge.h"
#include "src/dialog/WexDialog.h"
#include "src/platform/host/HostServices.h"
#include "src/shell/Module.h"

IMPLEMENT_DYNAMIC(WexButtonSt, CXPStyleButtonST)

namespace {

HICON loadButtonIcon(HWND button, const ImageButtonLook& look) {
    const HMONITOR monitor = MonitorFromWindow(button, MONITOR_DEFAULTTONEAREST);
    return loadIcon(look.icon, iconSide(look, hostMonitorDpiXScale(monitor)),
                    iconSide(look, hostMonitorDpiYScale(monitor)));
}

}  // namespace

const MessageMap& WexButtonSt::messageMap() const {
    static const MessageMap map(CXPStyleButtonST::messageMap(),
                                {onReflected<BN_CLICKED, &WexButtonSt::press>()});
    return map;
}

void WexButtonSt::discovered(WexDialog& dialog, CCtrlInfo&) {
    ModifyStyle(0, BS_ICON);
    SetAlign(0);
    SetThemeHelper(&dialog.m_themeHelper);
    const auto look = imageButtonLook(
        GetWindowText(), {g_buttonCaptionA, g_buttonCaptionB, g_buttonCaptionC, g_buttonCaptionD});
    if (!look) return;
    SetWindowText(look->text);
    SetIcon(loadButtonIcon(m_hWnd, *look));
    if (look->text.empty()) describe(look->icon);
}

// What an icon means is the text of the same number.
void WexButtonSt::describe(int icon) {
    const CString caption = loadString(g_resourceInstance, icon);
    m_mnemonic = mnemonicOf(caption);
    setTip(tipText(caption));
}

void WexButtonSt::press() { publish(*this, L"1", REASON_PRESSED, m_action); }
