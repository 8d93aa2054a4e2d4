// An edit box. It tells Lisp its text when the person leaves it; it can be made to take distances or angles
// alone, and then shows them in the host's form.
#pragma once

#include "src/dialog/TileControl.h"
#include "src/platform/mfc/Controls.h"
#include "src/tiles/EditFilter.h"

class WexEditBox : public CEdit, public TileControl {
    DECLARE_DYNAMIC(WexEditBox)

  public:
    CWnd& wnd() override { return *this; }

    // Takes numbers of that notation from now on. A unit code outside 1 to 5 leaves the characters that can
    // be typed as they are; code and precision go to the host's converters unchanged.
    void setNotation(EditMode mode, int unit, int precision);

  protected:
    const MessageMap& messageMap() const override;

  private:
    void onSetFocus();
    void onChar(UINT typed, UINT flags);
    void endEditing();

    EditMode m_mode = EditMode::plain;
    int m_unit = 0;
    int m_precision = 0;
    CString m_lastGood;
    CString m_validChars;  // empty: all
    // From the gain of the focus to the first end of editing.
    bool m_focusPending = false;
};
