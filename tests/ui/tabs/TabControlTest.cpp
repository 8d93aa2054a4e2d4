// What a tab control is made of, and what it does with the members of its pages, on windows of its own.
#include <gtest/gtest.h>

#include "src/tabs/WexTabCtrl.h"

namespace {

class TabControl : public testing::Test {
  protected:
    TabControl() {
        parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, 400, 300}, nullptr, 0);
        tab.CreateEx(0, L"SysTabControl32", L"", WS_CHILD | WS_VISIBLE, RECT{0, 0, 300, 200}, parent.m_hWnd,
                     110);
        for (CWnd* member : {&first, &second})
            member->CreateEx(0, L"Edit", L"", WS_CHILD | WS_VISIBLE, RECT{20, 50, 120, 70}, parent.m_hWnd, 0);
        tab.setUp();
    }

    CWnd parent;
    WexTabCtrl tab;
    CEdit first, second;
};

TEST_F(TabControl, LiesUnderItsSiblingsWithABlankBackgroundThatFollowsItsSize) {
    EXPECT_EQ(GetWindow(first.m_hWnd, GW_HWNDLAST), tab.m_hWnd);
    const HWND background = GetDlgItem(tab.m_hWnd, 6000);
    ASSERT_EQ(background, tab.m_background.m_hWnd);
    EXPECT_EQ(tab.m_background.className(), L"Static");
    EXPECT_EQ(tab.m_background.GetWindowText(), L"");
    EXPECT_EQ(tab.m_background.GetStyle(), DWORD{WS_CHILD | WS_VISIBLE});
    for (const RECT size : {RECT{0, 0, 300, 200}, RECT{5, 5, 205, 405}}) {
        tab.MoveWindow(size);
        const RECT client = tab.GetClientRect();
        const RECT rect = tab.m_background.rectInParent();
        EXPECT_EQ(rect.left, 2);
        EXPECT_EQ(rect.top, 4);
        EXPECT_EQ(rect.right, client.right - 4);
        EXPECT_EQ(rect.bottom, client.bottom - 4);
    }
}

TEST_F(TabControl, PassesOverMembersThatAreGone) {
    tab.addPage(L"First", {&first});
    tab.addPage(L"Second", {&second});
    tab.SendMessage(TCM_SETCURFOCUS, 1);
    EXPECT_FALSE(IsWindowVisible(first.m_hWnd));
    EXPECT_TRUE(IsWindowVisible(second.m_hWnd));
    first.DestroyWindow();
    tab.SendMessage(TCM_SETCURFOCUS, 0);
    EXPECT_FALSE(IsWindowVisible(second.m_hWnd));
}

}  // namespace
