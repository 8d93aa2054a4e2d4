#include "host/runner/WhereItStood.h"

#include "host/drive/MessageBoxes.h"
#include "host/drive/Player.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

BOOL CALLBACK appendDialog(HWND window, LPARAM list) noexcept {
    wchar_t caption[256] = {};
    if (IsWindowVisible(window) && isSystemDialog(window)) {
        InternalGetWindowText(window, caption, ARRAYSIZE(caption));
        reinterpret_cast<std::wstring*>(list)->append(L"\n  dialog \"").append(caption).append(L"\" is open");
    }
    return TRUE;
}

}  // namespace

std::wstring whereItStood(DWORD thread) {
    std::wstring report;
    EnumThreadWindows(thread, &appendDialog, reinterpret_cast<LPARAM>(&report));
    const std::wstring step = player().progress().place();
    if (!step.empty()) report += L"\n  the last step was " + step;
    const std::wstring action = host().actions().running();
    if (!action.empty()) report += L"\n  the action that runs is that of " + action;
    const std::wstring place = wideText(host().lisp().place().text());
    if (!place.empty()) report += L"\n  the last call was at " + place;
    return report;
}
