// A modal run: who owns it, when it shows, what ends it and with what.
#include "src/platform/mfc/CWinApp.h"
#include "src/platform/mfc/Controls.h"
#include "tests/ui/mfc/Support.h"

namespace {

struct ModalTest : MfcTest {};

TEST_F(ModalTest, RunsWithTheOwnerDisabledAndGivesItBack) {
    TestDialog dialog(&owner);
    owner.SetFocus();
    owner.steps = {[&] {
        EXPECT_TRUE(IsWindowVisible(dialog.m_hWnd));
        EXPECT_TRUE(dialog.isRunning());
        EXPECT_FALSE(IsWindowEnabled(owner.m_hWnd));
        EXPECT_EQ(::GetWindow(dialog.m_hWnd, GW_OWNER), owner.m_hWnd);
        EXPECT_EQ(GetActiveWindow(), dialog.m_hWnd);
        EXPECT_EQ(dialog.DoModal(), -1) << "a dialog runs once at a time";
        dialog.click(1);
    }};
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_FALSE(dialog.isRunning());
    EXPECT_TRUE(IsWindowEnabled(owner.m_hWnd));
    EXPECT_EQ(GetActiveWindow(), owner.m_hWnd);

    owner.steps = {[&] { dialog.click(2); }};
    EXPECT_EQ(dialog.DoModal(), IDCANCEL) << "it can run again";

    owner.EnableWindow(false);
    owner.steps = {[&] { dialog.click(2); }};
    dialog.DoModal();
    EXPECT_FALSE(IsWindowEnabled(owner.m_hWnd)) << "an owner that was disabled stays so";
}

TEST_F(ModalTest, EndWhileItIsInitialisedNeverShowsIt) {
    TestDialog dialog(&owner);
    bool shown = false;
    dialog.init = [&] {
        dialog.EndDialog(5);
        dialog.EndDialog(6);
    };
    dialog.show = [&] { shown = shown || !IsWindowVisible(dialog.m_hWnd); };  // it is about to be
    EXPECT_EQ(dialog.DoModal(), 6);
    EXPECT_FALSE(shown);
    EXPECT_EQ(owner.idles, 0);
}

TEST_F(ModalTest, LastEndBeforeTheLoopLeavesDecides) {
    TestDialog dialog(&owner);
    dialog.EndDialog(1);  // no window yet: no effect
    dialog.ok = [&] {
        dialog.EndDialog(3);
        EXPECT_FALSE(IsWindowVisible(dialog.m_hWnd));
        EXPECT_NE(dialog.GetDlgItem(110), nullptr) << "its controls still answer";
        dialog.EndDialog(4);
    };
    dialog.destroy = [&] { dialog.EndDialog(9); };
    owner.steps = {[&] { dialog.click(1); }};
    EXPECT_EQ(dialog.DoModal(), 4);
    EXPECT_TRUE(owner.steps.empty());
}

class FocusNoting : public CEdit {
  public:
    Action lost;
    const MessageMap& messageMap() const override {
        static const MessageMap map(CEdit::messageMap(), {onReflected<EN_KILLFOCUS, &FocusNoting::onLost>()});
        return map;
    }

  private:
    void onLost() { run(lost); }
};

TEST_F(ModalTest, FocusLeavesAnEditBoxWithinTheEnd) {
    FocusNoting edit;
    TestDialog dialog(&owner);
    dialog.init = [&] { edit.SubclassWindow(::GetDlgItem(dialog.m_hWnd, 110)); };
    bool ending = false, lostWhileEnding = false;
    edit.lost = [&] { lostWhileEnding = lostWhileEnding || (ending && dialog.isRunning()); };
    dialog.ok = [&] {
        edit.SetFocus();
        ending = true;
        dialog.EndDialog(1);
        ending = false;
    };
    owner.steps = {[&] { dialog.click(1); }};
    dialog.DoModal();
    EXPECT_TRUE(lostWhileEnding);
}

TEST_F(ModalTest, OuterDialogGetsItsFocusBack) {
    TestDialog outer(&owner);
    TestDialog inner(&outer);
    outer.ok = [&] {
        ::SetFocus(outer.GetDlgItem(110)->m_hWnd);
        inner.DoModal();
        EXPECT_EQ(GetFocus(), outer.GetDlgItem(110)->m_hWnd);
        outer.EndDialog(1);
    };
    inner.ok = [&] {
        inner.EndDialog(1);
        EXPECT_FALSE(IsWindowEnabled(outer.m_hWnd)) << "the handler is still at work";
    };
    inner.init = [&] { inner.PostMessage(WM_COMMAND, IDOK); };
    owner.steps = {[&] { outer.click(1); }};
    EXPECT_EQ(outer.DoModal(), 1);
    EXPECT_NE(GetFocus(), nullptr);
}

TEST_F(ModalTest, QuitEndsEveryRunAndStaysInTheQueue) {
    TestDialog outer(&owner);
    TestDialog inner(&outer);
    int innerResult = 0;
    outer.ok = [&] { innerResult = inner.DoModal(); };
    inner.init = [] { PostQuitMessage(3); };
    owner.steps = {[&] { outer.PostMessage(WM_COMMAND, IDOK); }};
    EXPECT_EQ(outer.DoModal(), -1);
    EXPECT_EQ(innerResult, -1);
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 3u);
}

TEST_F(ModalTest, MissingTemplateOrDestroyedWindowGivesMinusOne) {
    EXPECT_EQ(TestDialog(&owner, 99).DoModal(), -1);
    EXPECT_TRUE(IsWindowEnabled(owner.m_hWnd));

    TestDialog dialog(&owner);
    owner.steps = {[&] { dialog.DestroyWindow(); }};
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(IsWindowEnabled(owner.m_hWnd));

    AfxGetModuleState()->m_hCurrentResourceHandle = nullptr;
    EXPECT_EQ(TestDialog(&owner).DoModal(), -1) << "the program's own resources are not searched";
}

Owner* g_main = nullptr;

TEST_F(ModalTest, OwnerIsFoundWhenTheRunBegins) {
    CWnd child;
    child.CreateEx(0, L"Static", L"", WS_CHILD | WS_VISIBLE, RECT{0, 0, 9, 9}, owner.m_hWnd, 0);
    Owner main;
    g_main = &main;
    AfxSetMainWindow([] { return g_main->m_hWnd; });
    const auto ownerOf = [&](CWnd* parent, Owner& idleTold) {
        TestDialog dialog(parent);
        HWND found = nullptr;
        idleTold.steps = {[&] {
            found = ::GetWindow(dialog.m_hWnd, GW_OWNER);
            dialog.EndDialog(0);
        }};
        EXPECT_EQ(dialog.DoModal(), 0);
        return found;
    };
    EXPECT_EQ(ownerOf(&child, owner), owner.m_hWnd) << "the top-level window of a child";
    EXPECT_EQ(ownerOf(nullptr, main), main.m_hWnd);
    child.DestroyWindow();
    EXPECT_EQ(ownerOf(&child, main), main.m_hWnd) << "a window that is gone";
    AfxSetMainWindow(nullptr);

    // Without any owner the dialog tells itself of idleness.
    TestDialog alone(nullptr);
    alone.init = [&] { ::PostMessageW(alone.m_hWnd, WM_COMMAND, IDOK, 0); };
    EXPECT_EQ(alone.DoModal(), IDOK);
}

TEST_F(ModalTest, IdlenessIsToldOnceInAPeriod) {
    TestDialog dialog(&owner);
    // From the first idle moment on nothing happens until the timer rings.
    owner.steps = {[&] {
        owner.waits = true;
        SetTimer(dialog.m_hWnd, 1, 30, nullptr);
    }};
    dialog.timer = [&] { dialog.EndDialog(0); };
    EXPECT_EQ(dialog.DoModal(), 0);
    EXPECT_GT(owner.idles, 0);
    EXPECT_LT(owner.idles, 20) << "a few, as the platform's own messages count, but not over and over";
}

}  // namespace
