// Tips that are shown while the pointer rests on a tool, which is the client area of a window.
#pragma once

#include "src/platform/mfc/CWnd.h"

class CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)

  public:
    bool Create(HWND parent) {
        return CreateEx(WS_EX_TOPMOST, TOOLTIPS_CLASSW, L"", WS_POPUP | TTS_ALWAYSTIP, RECT{}, parent, 0);
    }
    void Activate(bool active) const { SendMessage(TTM_ACTIVATE, active); }
    int GetToolCount() const { return static_cast<int>(SendMessage(TTM_GETTOOLCOUNT)); }
    void AddTool(HWND window, const RECT& area) const { sendTool(TTM_ADDTOOLW, window, L"", area); }
    void UpdateTipText(HWND window, const CString& text) const {
        sendTool(TTM_UPDATETIPTEXTW, window, text.c_str(), RECT{});
    }
    void RelayEvent(MSG& message) const {
        SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
    }

  private:
    void sendTool(UINT message, HWND window, const wchar_t* text, const RECT& area) const {
        // The size that all versions of the control know.
        TOOLINFOW tool = {.cbSize = TTTOOLINFOW_V1_SIZE, .hwnd = window, .uId = 1, .rect = area};
        tool.lpszText = const_cast<wchar_t*>(text);
        SendMessage(message, 0, reinterpret_cast<LPARAM>(&tool));
    }
};
