// A button that shows an icon beside or instead of its text.
#pragma once

#include "src/buttons/CThemeHelperST.h"
#include "src/platform/mfc/Controls.h"

class CXPStyleButtonST : public CButton {
    DECLARE_DYNAMIC(CXPStyleButtonST)

  public:
    // The button's from now on; null takes it away.
    void SetIcon(HICON) {}
    void SetAlign(int) {}
    void SetThemeHelper(CThemeHelperST*) {}
};
