// The drawing preview: what it shows of a file, how the mouse moves it, and what is left when it goes.
#include <gtest/gtest.h>

#include "host/drive/Resources.h"
#include "src/platform/host/HostServices.h"
#include "tests/support/Canvas.h"
#include "tests/support/Messages.h"
#include "tests/support/TempFolder.h"
#include "tests/ui/preview/PreviewProbe.h"

namespace {

constexpr int SIZE = 200;
constexpr COLORREF RED = RGB(255, 0, 0);

// A red square in the middle of an empty frame of 10 by 10.
const std::string DRAWING =
    "wexdrawing 1\nblock \"*Model_Space\" 0 0 0\n"
    "  POLYLINE 0 8 continuous 1 closed 0 0 1 0 0 0 0 10 0 0 0 10 10 0 0 0 10 0 0\n"
    "  SOLID 0 1 continuous 1 4 4 0 6 4 0 6 6 0 4 6 0\n"
    "end-of-drawing\n";

// The alerts of this thread are closed as soon as they stand.
class AlertCloser {
  public:
    AlertCloser() : m_timer(SetTimer(nullptr, 0, 20, &close)) {}
    ~AlertCloser() { KillTimer(nullptr, m_timer); }
    AlertCloser(const AlertCloser&) = delete;
    AlertCloser& operator=(const AlertCloser&) = delete;

  private:
    static void CALLBACK close(HWND, UINT, UINT_PTR, DWORD) {
        EnumThreadWindows(
            GetCurrentThreadId(),
            [](HWND window, LPARAM) -> BOOL {
                wchar_t name[16];
                GetClassNameW(window, name, 16);
                if (std::wstring_view(name) == L"#32770") PostMessageW(window, WM_COMMAND, IDOK, 0);
                return TRUE;
            },
            0);
    }

    UINT_PTR m_timer;
};

struct PreviewTest : testing::Test {
    PreviewTest() {
        folder.file("preview.wdr", DRAWING);
        parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, SIZE, SIZE}, nullptr, 0);
        preview.Create(RECT{0, 0, SIZE, SIZE}, parent.m_hWnd, 1);
        preview.ShowWindow(SW_SHOW);
    }

    bool load() { return preview.loadDrawing(file); }
    COLORREF at(int x, int y) const { return colorAt(preview.m_hWnd, x, y); }
    LRESULT mouse(UINT message, int x, int y, WPARAM w = 0) const {
        return preview.SendMessage(message, w, MAKELPARAM(x, y));
    }
    // How many pixels across the red square is now.
    int square() const {
        int count = 0;
        const RECT client = preview.GetClientRect();
        for (int x = 0; x < client.right; ++x) count += at(x, client.bottom / 2) == RED;
        return count;
    }

    const TempFolder folder;
    const std::wstring file = folder.file("preview.wdr");
    CWnd parent;
    CGsPreviewCtrl preview;
    PreviewProbe probe{preview};
};

TEST_F(PreviewTest, ShowsADrawingInPlan) {
    EXPECT_EQ(at(5, 5), GetSysColor(COLOR_3DFACE));
    ASSERT_TRUE(load());
    EXPECT_EQ(at(100, 100), RED);
    EXPECT_NE(at(50, 100), RED);
    EXPECT_NEAR(square(), SIZE / 5, 1);
    // From below, as its menu can show it: the drawing stays loaded.
    probe.see({0, 0, -1});
    EXPECT_TRUE(probe.database());
    EXPECT_EQ(at(100, 100), RED);
    preview.MoveWindow(RECT{0, 0, SIZE / 2, SIZE / 2});
    EXPECT_EQ(at(50, 50), RED);
    EXPECT_NEAR(square(), SIZE / 10, 1);
}

TEST_F(PreviewTest, TellsOfAFileThatCantBeShown) {
    const AlertCloser alerts;
    EXPECT_FALSE(preview.loadDrawing(L"no such file.wdr"));
    EXPECT_FALSE(probe.database());
    ASSERT_TRUE(load());
    folder.file("preview.wdr", std::string("wexdrawing 1\n"));
    EXPECT_FALSE(load());
    EXPECT_FALSE(probe.database());
    EXPECT_TRUE(probe.block().empty());
    EXPECT_EQ(at(100, 100), GetSysColor(COLOR_3DFACE));
}

TEST_F(PreviewTest, ShowsNothingForABlockThatIsntThere) {
    ASSERT_TRUE(preview.loadDrawingByPath(file));
    EXPECT_TRUE(preview.showBlock(L"*MODEL_SPACE"));
    EXPECT_EQ(at(100, 100), RED);
    EXPECT_TRUE(preview.showBlock(L"nothing"));
    EXPECT_TRUE(probe.block().empty());
    EXPECT_FALSE(preview.hasView());
    EXPECT_FALSE(preview.showBlock(L""));
}

TEST_F(PreviewTest, TheWheelZoomsByItsDirectionAlone) {
    mouse(WM_MOUSEWHEEL, 0, 0, MAKEWPARAM(0, WHEEL_DELTA));
    ASSERT_TRUE(load());
    const int before = square();
    EXPECT_EQ(mouse(WM_MOUSEWHEEL, 0, 0, MAKEWPARAM(0, 5 * WHEEL_DELTA)), TRUE);
    EXPECT_NEAR(square(), before * 1.1, 1);
    mouse(WM_MOUSEWHEEL, 0, 0, MAKEWPARAM(0, 0));
    EXPECT_NEAR(square(), before * 1.21, 1);
    mouse(WM_MOUSEWHEEL, 0, 0, MAKEWPARAM(0, static_cast<WORD>(-240)));
    EXPECT_NEAR(square(), before * 1.089, 1);
    preview.setMouseMode(0);
    EXPECT_EQ(mouse(WM_MOUSEWHEEL, 0, 0, MAKEWPARAM(0, WHEEL_DELTA)), TRUE);
    EXPECT_NEAR(square(), before * 1.089, 1);
}

TEST_F(PreviewTest, ADragPansUntilTheButtonIsReleased) {
    mouse(WM_LBUTTONDOWN, 50, 50);
    EXPECT_FALSE(probe.isPanning());
    EXPECT_EQ(GetFocus(), preview.m_hWnd);
    ASSERT_TRUE(load());
    mouse(WM_LBUTTONDOWN, 50, 50);
    EXPECT_EQ(GetCapture(), preview.m_hWnd);
    mouse(WM_MOUSEMOVE, 80, 40);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_TRUE(probe.isPanning());
    EXPECT_EQ(at(130, 90), RED);
    EXPECT_NE(at(100, 115), RED);
    mouse(WM_LBUTTONUP, 80, 40);
    mouse(WM_MOUSEMOVE, 20, 20);
    EXPECT_EQ(at(130, 90), RED);
    mouse(WM_LBUTTONDOWN, 80, 40);
    mouse(WM_LBUTTONUP, 80, 40);
    EXPECT_EQ(GetCapture(), nullptr);
    // The middle button does the same, and shows the pointer once more.
    mouse(WM_MBUTTONDOWN, 50, 50);
    EXPECT_EQ(GetCapture(), preview.m_hWnd);
    EXPECT_TRUE(probe.isPanning());
    const int shown = ShowCursor(TRUE);
    mouse(WM_MBUTTONUP, 50, 50);
    EXPECT_EQ(ShowCursor(TRUE), shown + 2);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_FALSE(probe.isPanning());
    // In mode 0 a move forgets a pan.
    mouse(WM_MBUTTONDOWN, 50, 50);
    preview.setMouseMode(0);
    mouse(WM_MOUSEMOVE, 80, 40);
    EXPECT_FALSE(probe.isPanning());
}

// A dotted rectangle, 2 pixels from the edge.
TEST_F(PreviewTest, TheFocusShowsAlsoAfterAPaintAndGoesWithoutATrace) {
    ASSERT_TRUE(load());
    const auto edge = [&] {
        std::vector<COLORREF> colors;
        for (int y = 50; y < 58; ++y) colors.push_back(at(2, y));
        return colors;
    };
    const auto before = edge();
    preview.SetFocus();
    const auto marked = edge();
    EXPECT_NE(marked, before);
    preview.Invalidate();
    EXPECT_EQ(edge(), marked);
    SetFocus(parent.m_hWnd);
    EXPECT_EQ(edge(), before);
}

TEST_F(PreviewTest, ADragZoomAppliesItsLastFactorOnceMore) {
    ASSERT_TRUE(load());
    const int before = square();
    probe.dragZoomFrom({100, 100});
    mouse(WM_MOUSEMOVE, 100, 60);
    EXPECT_DOUBLE_EQ(probe.dragZoom(), 1.2);
    EXPECT_NEAR(square(), before * 1.2, 1);
    mouse(WM_MOUSEMOVE, 100, 80);
    EXPECT_DOUBLE_EQ(probe.dragZoom(), 0.9);
    EXPECT_NEAR(square(), before * 1.2 * 1.2 * 0.9, 1);
    mouse(WM_MOUSEMOVE, 150, 80);
    EXPECT_NEAR(square(), before * 1.2 * 1.2 * 0.9, 1);
}

TEST_F(PreviewTest, TheArcballTurnsTheDrawing) {
    ASSERT_TRUE(load());
    probe.orbitFrom({100, 100});
    // An eighth of a turn about the upright: the square is seen narrower.
    mouse(WM_MOUSEMOVE, 100 + 57, 100);
    EXPECT_NEAR(square(), SIZE / 5 * 0.707, 2);
    mouse(WM_MOUSEMOVE, 100, 100);
    EXPECT_NEAR(square(), SIZE / 5, 1);
}

TEST_F(PreviewTest, ABorderIsDrawnInTheColorOfTheDrawingArea) {
    preview.setBorderColor(7);
    uint32_t color = 0;
    hostGetCurrentColors(&color, 1);
    for (const POINT p : {POINT{1, 1}, {1, SIZE - 2}, {SIZE - 2, 50}}) EXPECT_EQ(at(p.x, p.y), color);
    EXPECT_NE(at(0, 0), color);
    EXPECT_NE(at(2, 2), color);
}

TEST_F(PreviewTest, AZoomFromOutsideScalesTheView) {
    preview.zoomView(2.0);
    ASSERT_TRUE(load());
    preview.zoomView(2.0);
    EXPECT_NEAR(square(), SIZE / 5 * 2, 1);
}

TEST_F(PreviewTest, HasOneTipWhoseTextChanges) {
    const auto text = [&] { return tipText(probe.tip().m_hWnd, preview.m_hWnd, 1); };
    preview.setToolTipText(L"", true);
    EXPECT_FALSE(probe.tip().isLive());
    preview.setToolTipText(L"A relay", true);
    preview.setToolTipText(L"A lamp", true);
    EXPECT_EQ(probe.tip().GetToolCount(), 1);
    EXPECT_EQ(text(), L"A lamp");
    preview.setToolTipText(L"", false);
    EXPECT_EQ(text(), L"A lamp");
}

TEST_F(PreviewTest, GivesItsBrushToWhateverAsksForColors) {
    const ClientDC dc(preview.m_hWnd);
    const HBRUSH brush = static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
    probe.setBackground(brush, RGB(1, 2, 3));
    for (const UINT message : {WM_CTLCOLORSTATIC, WM_CTLCOLOREDIT, WM_CTLCOLORDLG}) {
        SetBkColor(dc, 0);
        const LRESULT given = preview.SendMessage(message, reinterpret_cast<WPARAM>(dc.m_hDC), 0);
        EXPECT_EQ(given, reinterpret_cast<LRESULT>(brush));
        EXPECT_EQ(GetBkColor(dc), RGB(1, 2, 3));
    }
    EXPECT_EQ(at(100, 100), RGB(128, 128, 128));
}

TEST_F(PreviewTest, TheGadgetIsPaintedInModeOne) {
    ASSERT_TRUE(load());
    EXPECT_NE(at(20, 100), RGB(0, 255, 0));
    preview.setMouseMode(1);
    preview.Invalidate();
    // The circle's left end and its top.
    EXPECT_EQ(at(20, 99), RGB(0, 255, 0));
    EXPECT_EQ(at(99, 20), RGB(0, 255, 0));
}

TEST_F(PreviewTest, ManyDrawingsLeaveNothing) {
    const auto shownOften = [&](int rounds) {
        for (int round = 0; round < rounds; ++round) {
            ASSERT_TRUE(load());
            ASSERT_EQ(at(100, 100), RED);
        }
    };
    shownOften(5);
    const int before = heldResources().gdiObjects;
    ASSERT_GT(before, 0);
    shownOften(200);
    EXPECT_LE(heldResources().gdiObjects, before);
    preview.DestroyWindow();
    EXPECT_FALSE(probe.database());
}

}  // namespace
