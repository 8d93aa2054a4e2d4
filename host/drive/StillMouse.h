// Keeps the mouse that nobody moves on purpose from working the dialogs of sessions.
#pragma once

#include <windows.h>

// While it lives, the real mouse doesn't move over this thread's windows: it may lie where a dialog comes up,
// and the list of a combo box marks what lies under it. A person who holds its button moves it, and so does a
// session by real input.
class StillMouse {
  public:
    StillMouse();
    ~StillMouse();
    StillMouse(const StillMouse&) = delete;
    StillMouse& operator=(const StillMouse&) = delete;

  private:
    HHOOK m_hook;
};
