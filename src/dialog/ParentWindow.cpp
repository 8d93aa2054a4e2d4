#include "src/dialog/ParentWindow.h"

#include "src/dialog/WexDialog.h"
#include "src/platform/host/HostServices.h"

namespace {

// How the class names of the host's own dialogs begin.
constexpr std::wstring_view HOST_DIALOG_CLASS = L"marlo_dlg";

CWnd* askActiveWindow() {
    const bool graphics = hostGraphScr() == HOST_NORMAL;
    return CWnd::FromHandle(graphics ? GetActiveWindow() : hostGetMainFrame());
}

CWnd* activeWindow() {
    if (CWnd* active = askActiveWindow()) return active;
    SetFocus(hostGetMainFrame());
    if (CWnd* active = askActiveWindow()) return active;
    return CWnd::FromHandle(hostGetMainFrame());
}

}  // namespace

CWnd* findParentWindow() {
    CWnd* active = activeWindow();
    if (active && active->className().starts_with(HOST_DIALOG_CLASS)) return active;
    if (g_dialogs.empty()) return CWnd::FromHandle(hostGetMainFrame());
    if (g_dialogs.newest()->isLive()) return g_dialogs.newest();
    // The newest was made but isn't running.
    if (WexDialog* before = g_dialogs.beforeNewest()) return before;
    return activeWindow();
}
