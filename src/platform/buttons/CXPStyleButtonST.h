// An image button with the look of the active theme.
#pragma once

#include "src/platform/buttons/CButtonST.h"
#include "src/platform/buttons/CThemeHelperST.h"

class CXPStyleButtonST : public CButtonST {
    DECLARE_DYNAMIC(CXPStyleButtonST)

  public:
    // The helper must outlive the button's window. Without one, and without a theme, the look is the classic
    // one.
    void SetThemeHelper(CThemeHelperST* helper);

  protected:
    const MessageMap& messageMap() const override;
    ButtonGround drawFace(HDC dc, const ButtonState& state, const RECT& area) override;

  private:
    void onThemeChanged();

    CThemeHelperST* m_themeHelper = nullptr;
};
