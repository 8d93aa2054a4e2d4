// A button that its caption turned into an image button.
#pragma once

#include "src/dialog/ButtonState.h"
#include "src/dialog/Pressable.h"
#include "src/dialog/TileControl.h"
#include "src/platform/buttons/CXPStyleButtonST.h"

// It never ends the dialog by itself, whatever its id, and its clicks are not guarded.
class WexButtonSt : public CXPStyleButtonST, public TileControl, public Pressable {
    DECLARE_DYNAMIC(WexButtonSt)

  public:
    CWnd& wnd() override { return *this; }
    CString value() override { return buttonValue(*this); }
    void discovered(WexDialog& dialog, CCtrlInfo& tile) override;
    // An icon that stands alone has its mnemonic in its tip.
    bool hasMnemonic(wchar_t letter) const override { return m_mnemonic == letter; }
    void click() override { press(); }
    void press() override;

  protected:
    const MessageMap& messageMap() const override;

  private:
    void describe(int icon);

    std::optional<wchar_t> m_mnemonic;
};
