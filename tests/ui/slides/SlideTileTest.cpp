// An image tile's window with the focus, and a slide drawn on it: no file gets that far, so the tile is given
// a slide at hand.
#include <gtest/gtest.h>

#include "host/drive/Resources.h"
#include "src/slides/DcSurface.h"
#include "src/slides/WexSlideImage.h"
#include "tests/support/Canvas.h"
#include "tests/ui/slides/QuarterSlide.h"

namespace {

class SlideTile : public testing::Test {
  protected:
    static constexpr int WIDTH = 200, HEIGHT = 100;

    SlideTile() {
        parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, 300, 200}, nullptr, 0);
        const auto child = [&](const wchar_t* kind, int top, int height) {
            return CreateWindowExW(0, kind, L"", WS_CHILD | WS_VISIBLE, 0, top, WIDTH, height, parent.m_hWnd,
                                   nullptr, nullptr, nullptr);
        };
        tile.SubclassWindow(child(L"Button", 0, HEIGHT));
        other = child(L"Edit", HEIGHT, 20);
        SetFocus(other);
        UpdateWindow(tile.m_hWnd);
    }

    COLORREF at(int x, int y) const {
        const ClientDC dc(tile.m_hWnd);
        return GetPixel(dc, x, y);
    }
    // Of eight points of the focus mark, how many have that color.
    int markPoints(COLORREF color) const {
        int count = 0;
        for (int x = 60; x < 68; ++x) count += at(x, 2) == color;
        return count;
    }

    CWnd parent;
    HWND other;
    WexSlideImage tile;
};

// The slide is as wide as the tile. Its upper part may lie outside, where the screen's pixels aren't square.
TEST_F(SlideTile, ShowsASlideInItsProportionsUnderTheFocusMark) {
    SetFocus(tile.m_hWnd);
    tile.fillRect({0, 0, WIDTH, HEIGHT}, GREEN);
    tile.DrawSlideObject(quarter());
    EXPECT_EQ(at(10, HEIGHT - 8), RED);
    EXPECT_EQ(at(WIDTH / 2 - 6, HEIGHT - 8), RED);
    EXPECT_EQ(at(WIDTH / 2 + 6, HEIGHT - 8), BLACK);
    EXPECT_EQ(markPoints(BLACK), 4);
    SetFocus(other);
    EXPECT_EQ(markPoints(BLACK), 8);

    // The tile keeps nothing of it.
    RedrawWindow(tile.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(at(10, HEIGHT - 8), BLACK);
}

TEST_F(SlideTile, KeepsASnapshotOfASlideWithoutTheFocusMark) {
    SetFocus(tile.m_hWnd);
    tile.DrawSlideObject(quarter());
    tile.takeSnapshot();
    SetFocus(other);
    RedrawWindow(tile.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(at(10, HEIGHT - 8), RED);
    EXPECT_EQ(markPoints(BLACK), 8);
}

TEST(SlideTools, AreGivenBackAndLeaveNothing) {
    MadeSlide slide({1, false}, 100, 100);
    for (int i = 0; i < 10000; ++i) slide.color(i % 256).vector(1, 1, 2, 2);
    slide.end();
    const OpenSlide open(slide);
    const Canvas canvas(20, 20);
    const auto pen = static_cast<HPEN>(GetCurrentObject(canvas.dc(), OBJ_PEN));
    const UniqueBrush brush(CreateSolidBrush(GREEN));
    const SelectedObject selected(canvas.dc(), brush.get());
    const auto before = heldResources();
    DcSurface surface(canvas.dc());
    for (const int monochrome : {0, 1}) {
        open.Draw(surface, monochrome);
        EXPECT_EQ(GetCurrentObject(canvas.dc(), OBJ_PEN), pen);
        EXPECT_EQ(GetCurrentObject(canvas.dc(), OBJ_BRUSH), brush.get());
    }
    EXPECT_EQ(heldResources().gdiObjects, before.gdiObjects);
}

}  // namespace
