// A frame takes the place of a group box, and keeps one of its own inside.
#include <gtest/gtest.h>

#include "src/tiles/WexFrame.h"

TEST(Frame, TakesThePlaceOfAGroupBoxAndSizesItsOwn) {
    CWnd parent;
    parent.CreateEx(0, L"Static", L"", WS_POPUP, RECT{0, 0, 400, 300}, nullptr, 0);
    const HWND box =
        CreateWindowW(L"Button", L"Ratings", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | BS_GROUPBOX, 10, 20,
                      100, 50, parent.m_hWnd, reinterpret_cast<HMENU>(114), nullptr, nullptr);
    WexFrame frame;
    frame.replace(parent, 114);
    EXPECT_FALSE(IsWindow(box));
    EXPECT_EQ(parent.GetDlgItem(114), &frame);
    const RECT rect = frame.rectInParent();
    EXPECT_EQ(rect.left, 10);
    EXPECT_EQ(rect.bottom, 70);
    EXPECT_EQ(frame.GetStyle(), DWORD{WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS});

    const CWnd* inner = frame.GetDlgItem(101);
    ASSERT_NE(inner, nullptr);
    EXPECT_EQ(inner->GetWindowText(), L"Ratings");
    frame.SetWindowText(L"unseen");
    EXPECT_EQ(frame.GetWindowText(), L"");
    EXPECT_EQ(inner->GetWindowText(), L"Ratings");

    frame.MoveWindow({10, 20, 160, 110});
    const RECT inside = inner->rectInParent(), wanted{0, 0, 150, 90};
    EXPECT_TRUE(EqualRect(&inside, &wanted));
}
