#include "src/tiles/WexButtonSt.h"

#include <cmath>

#include "src/dialog/EventBridge.h"
#include "src/dialog/WexDialog.h"
#include "src/platform/host/HostServices.h"
#include "src/shell/Module.h"

IMPLEMENT_DYNAMIC(WexButtonSt, CXPStyleButtonST)

namespace {

// The side of a scaled icon, in pixels at 96 dots per inch.
constexpr double ICON_SIDE = 16.0;

HICON loadButtonIcon(HWND button, const ImageButtonLook& look) {
    if (!look.scaledIcon) return loadIcon(look.icon);
    const HMONITOR monitor = MonitorFromWindow(button, MONITOR_DEFAULTTONEAREST);
    return loadIcon(look.icon, static_cast<int>(std::lround(hostMonitorDpiXScale(monitor) * ICON_SIDE)),
                    static_cast<int>(std::lround(hostMonitorDpiYScale(monitor) * ICON_SIDE)));
}

}  // namespace

const MessageMap& WexButtonSt::messageMap() const {
    static const MessageMap map(CXPStyleButtonST::messageMap(),
                                {onReflected<BN_CLICKED, &WexButtonSt::press>()});
    return map;
}

void WexButtonSt::attach(WexDialog& dialog, CDataExchange&, int id) {
    SubclassWindow(::GetDlgItem(dialog.m_hWnd, id));
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
}

void WexButtonSt::press() { publish(*this, L"1", REASON_PRESSED, m_action); }
