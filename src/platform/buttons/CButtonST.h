// A push button that draws itself, with an icon beside or instead of its text.
#pragma once

#include "src/platform/buttons/ButtonIcon.h"
#include "src/platform/buttons/ButtonLook.h"
#include "src/platform/mfc/Controls.h"

// What a button's face leaves to be drawn on it: where icon and text stand, where the focus shows, and the
// text's color, with that of the light edge below it where it has one.
struct ButtonGround {
    RECT content;
    RECT focus;
    COLORREF text;
    COLORREF edge = CLR_INVALID;
};

class CButtonST : public CButton {
    DECLARE_DYNAMIC(CButtonST)

  public:
    // Shows that icon, which is the button's from now on; null shows none.
    void SetIcon(HICON icon);
    // Says what the button does, in a box that appears when the pointer rests on it; empty for none.
    void setTip(const CString& tip) { m_tip = tip; }
    // Whether the text stands beside the icon. If not, it is still what assistive programs tell; drawn unless
    // said otherwise.
    void setShowsText(bool shows);
    // How icon and text stand to each other. There is one way: 0, the icon on the left.
    void SetAlign(int align);

    ButtonState state() const;

  protected:
    // The push button draws itself from now on.
    void attached() override;
    const MessageMap& messageMap() const override;
    // Draws the face over `area` with what lies behind it.
    virtual ButtonGround drawFace(HDC dc, const ButtonState& state, const RECT& area);

  private:
    void onDrawItem(DRAWITEMSTRUCT* item);
    void drawContent(HDC dc, const ButtonState& state, const ButtonGround& ground) const;
    void makeTipWindow();
    void onMouseMove(UINT keys, POINT at);
    void onMouseLeave();
    LRESULT onSetStyle(WPARAM style, LPARAM redraw);
    LRESULT onGetDlgCode(WPARAM key, LPARAM message);
    LRESULT onDoubleClick(WPARAM keys, LPARAM at);
    LRESULT onEraseBackground(HDC dc);

    ButtonIcon m_icon;
    CString m_tip;
    bool m_showsText = true;
    bool m_hasTipWindow = false;
    bool m_hover = false;
    bool m_default = false;
};
