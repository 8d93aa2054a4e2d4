// An edit box. It tells Lisp its text when the person leaves it; it can be made to take distances or angles
// alone, and then shows them in the host's form.
#pragma once

#include <optional>

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

    // Sets the text. Of many that follow one another fast, the control, which measures each, takes few: a
    // text waits until a message reaches the box, which is then answered with that text in it, or until the
    // loop's next turn.
    void showText(const CString& text);

  protected:
    const MessageMap& messageMap() const override;
    LRESULT WindowProc(UINT message, WPARAM w, LPARAM l) override;

  private:
    void onSetFocus();
    void onChar(UINT typed, UINT flags);
    void endEditing();

    std::optional<CString> m_awaited;  // the text that waits
    ULONGLONG m_shownAt = 0;           // when showText last gave one to the control, in ms
    EditMode m_mode = EditMode::plain;
    int m_unit = 0;
    int m_precision = 0;
    CString m_lastGood;
    CString m_validChars;  // empty: all
    // From the gain of the focus to the first end of editing.
    bool m_focusPending = false;
};

// The family's setValue.
void setEditValue(CWnd& control, const CString& value, bool byKey);
