// Records what a person does to a whole window: closing and sizing it, its menus, and the boxes before it.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "host/record/Journal.h"

class WindowRecorder {
  public:
    explicit WindowRecorder(Journal& journal) : m_journal(journal) {}

    void closed(HWND dialog);
    // Of WM_ENTERSIZEMOVE, WM_SIZING and WM_EXITSIZEMOVE.
    void sized(HWND dialog, UINT message, WPARAM edge);
    // A message box or a dialog of the system is ended by that button.
    void answered(HWND box, int button);
    // Input while the menu is open.
    void menuInput(const MSG& message, HMENU menu, HWND dialog);

  private:
    void addMenuItem(HWND dialog, const std::wstring& text);

    Journal& m_journal;
    RECT m_before{};
    WPARAM m_edge = 0;
    // Of boxes that the step at hand has brought up, and that are answered as they are without being told.
    std::vector<std::wstring> m_untold;
    size_t m_steps = 0;  // so many were recorded when they came up
};
