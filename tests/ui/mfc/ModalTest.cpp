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
        CButton plain;  // without a line for the click, which it so leaves to the dialog
        plain.SubclassWindow(::GetDlgItem(dialog.m_hWnd, 1));
        dialog.SendMessage(WM_COMMAND, MAKEWPARAM(1, BN_SETFOCUS), reinterpret_cast<LPARAM>(plain.m_hWnd));
        EXPECT_TRUE(IsWindowVisible(dialog.m_hWnd)) << "only a click is an OK";
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

TEST_F(ModalTest, DialogWithoutAFontHearsItsControlsWhileTheyAreMade) {
    Noting<TestDialog> dialog(&owner, 2);
    int begins = 0;
    dialog.init = [&] { ++begins; };
    owner.steps = {[&] { dialog.click(IDOK); }};
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(begins, 1);
    EXPECT_EQ(dialog.seen.front(), UINT{WM_MEASUREITEM});
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
