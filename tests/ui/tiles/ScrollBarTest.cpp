// A scroll bar that keeps its own position. Discovery makes none, so it is tested on a window of its own.
#include <gtest/gtest.h>

#include "src/dialog/EventBridge.h"
#include "src/tiles/WexScrollBar.h"

namespace {

// Values and actions of the events.
CStringArray g_events;

}  // namespace

// In place of the product's, which tells Lisp.
void publish(const CWnd&, const CString& value, EventReason reason, const CString& action) {
    EXPECT_EQ(reason, REASON_SCROLLED);
    g_events.push_back(action + L" " + value);
}

namespace {

class ScrollBar : public testing::Test {
  protected:
    ScrollBar() {
        g_events.clear();
        parent.CreateEx(0, L"Static", L"", WS_POPUP, RECT{0, 0, 200, 100}, nullptr, 0);
        bar.CreateEx(0, L"ScrollBar", L"", WS_CHILD, RECT{0, 0, 100, 20}, parent.m_hWnd, 113);
        bar.m_action = L"scrolled";
        range(-20, 100);
    }

    void range(int low, int high) const { SetScrollRange(bar.m_hWnd, SB_CTL, low, high, FALSE); }

    // Where the bar stands after a message to its parent. Each is an event, and the thumb follows.
    int scroll(UINT code, int thumb = 0, UINT message = WM_HSCROLL) {
        g_events.clear();
        parent.SendMessage(message, MAKEWPARAM(code, thumb), reinterpret_cast<LPARAM>(bar.m_hWnd));
        EXPECT_EQ(g_events, CStringArray{L"scrolled " + std::to_wstring(bar.m_position)});
        EXPECT_EQ(GetScrollPos(bar.m_hWnd, SB_CTL), bar.m_position);
        return bar.m_position;
    }

    CWnd parent;
    WexScrollBar bar;
};

TEST_F(ScrollBar, StepsByLinesAndPagesWithinItsRange) {
    EXPECT_EQ(scroll(SB_LINEDOWN), 1);
    EXPECT_EQ(scroll(SB_PAGEDOWN), 11);
    EXPECT_EQ(scroll(SB_PAGEUP, 0, WM_VSCROLL), 1);
    EXPECT_EQ(scroll(SB_LINEUP), 0);
    bar.m_lineStep = 16;
    bar.m_pageStep = 90;
    EXPECT_EQ(scroll(SB_LINEUP), -16);
    EXPECT_EQ(scroll(SB_LINEUP), -20);
    EXPECT_EQ(scroll(SB_LINEUP), -20);
    EXPECT_EQ(scroll(SB_PAGEDOWN), 70);
    EXPECT_EQ(scroll(SB_LINEDOWN), 86);
    EXPECT_EQ(scroll(SB_LINEDOWN), 100);
    EXPECT_EQ(scroll(SB_PAGEDOWN), 100);
    EXPECT_EQ(scroll(SB_PAGEUP), 10);
    EXPECT_EQ(scroll(SB_PAGEUP), -20);
}

TEST_F(ScrollBar, FollowsTheThumbWhileItIsTrackedAndNoOtherCode) {
    EXPECT_EQ(scroll(SB_THUMBTRACK, 42), 42);
    EXPECT_EQ(scroll(SB_THUMBPOSITION, 7), 42);
    EXPECT_EQ(scroll(SB_TOP), 42);
    EXPECT_EQ(scroll(SB_ENDSCROLL), 42);
    EXPECT_EQ(scroll(SB_THUMBTRACK, 500), 100);
    EXPECT_EQ(scroll(SB_THUMBTRACK, -5), -5);
    range(0, 3);
    EXPECT_EQ(scroll(SB_ENDSCROLL), 0) << "a range that has shrunk holds at the next message";
}

TEST_F(ScrollBar, TakesAMessageThatIsSentToItselfToo) {
    bar.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0));
    EXPECT_EQ(bar.m_position, 1);
}

}  // namespace
