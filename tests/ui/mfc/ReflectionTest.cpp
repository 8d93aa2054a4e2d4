// Where commands and notifications go: the control that sent them, or the dialog's defaults.
#include <algorithm>

#include "src/platform/mfc/CTreeCtrl.h"
#include "src/platform/mfc/Controls.h"
#include "tests/ui/mfc/Support.h"

namespace {

class Pressed : public CButton {
  public:
    int clicks = 0;
    const MessageMap& messageMap() const override {
        static const MessageMap map(CButton::messageMap(), {onReflected<BN_CLICKED, &Pressed::onClicked>()});
        return map;
    }

  private:
    void onClicked() { ++clicks; }
};

class RefusingTree : public CTreeCtrl {
  public:
    bool refuse = true;
    const MessageMap& messageMap() const override {
        static const MessageMap map(CTreeCtrl::messageMap(),
                                    {onReflectedNotify<TVN_SELCHANGINGW, &RefusingTree::onChanging>()});
        return map;
    }

  private:
    LRESULT onChanging(NMHDR*) { return refuse; }
};

struct ReflectionTest : MfcTest {};

TEST_F(ReflectionTest, ControlTakesItsClickBeforeTheDialogDoes) {
    TestDialog dialog(&owner);
    int oks = 0;
    dialog.ok = [&] { ++oks; };
    ASSERT_TRUE(dialog.Create());

    dialog.click(1);
    EXPECT_EQ(oks, 1) << "the dialog's default";
    {
        CButton plain;
        plain.SubclassWindow(::GetDlgItem(dialog.m_hWnd, 1));
        dialog.click(1);
        EXPECT_EQ(oks, 2) << "a wrapper without a line for the click leaves it to the dialog";
    }

    Pressed ok;
    ok.SubclassWindow(::GetDlgItem(dialog.m_hWnd, 1));
    dialog.click(1);
    EXPECT_EQ(oks, 2);
    EXPECT_EQ(ok.clicks, 1);
    dialog.SendMessage(WM_COMMAND, MAKEWPARAM(1, BN_SETFOCUS), reinterpret_cast<LPARAM>(ok.m_hWnd));
    EXPECT_EQ(oks, 2) << "only a click is an OK";
}

TEST_F(ReflectionTest, AnswerOfANotificationReachesTheControl) {
    RefusingTree tree;
    TestDialog dialog(&owner);
    ASSERT_TRUE(dialog.Create());
    ASSERT_TRUE(tree.SubclassWindow(::GetDlgItem(dialog.m_hWnd, 112)));
    TVINSERTSTRUCTW row{};
    row.item.mask = TVIF_TEXT;
    row.item.pszText = const_cast<wchar_t*>(L"row");
    const LPARAM item = tree.SendMessage(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&row));
    EXPECT_FALSE(tree.SendMessage(TVM_SELECTITEM, TVGN_CARET, item));
    tree.refuse = false;
    EXPECT_TRUE(tree.SendMessage(TVM_SELECTITEM, TVGN_CARET, item));
}

}  // namespace
