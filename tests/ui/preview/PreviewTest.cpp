// The drawing preview: what it shows of a file, how the mouse moves it, and what is left when it goes.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "src/platform/mfc/Drawing.h"
#include "src/preview/CGsPreviewCtrl.h"

// What only tests look at and set.
class PreviewProbe {
  public:
    explicit PreviewProbe(CGsPreviewCtrl& preview) : m_preview(preview) {}
    HostGsView& view() const { return *m_preview.m_view; }
    bool isPanning() const { return m_preview.m_panning; }
    double dragZoom() const { return m_preview.m_dragZoom; }
    const CString& block() const { return m_preview.m_blockName; }
    bool hasDatabase() const { return m_preview.m_database; }
    void orbitFrom(POINT at) const { m_preview.m_orbiting = true, m_preview.m_lastPoint = at; }
    void dragZoomFrom(POINT at) const { m_preview.m_zoomDragging = true, m_preview.m_lastPoint = at; }

  private:
    CGsPreviewCtrl& m_preview;
};

namespace {

constexpr int SIZE = 200;
constexpr COLORREF RED = RGB(255, 0, 0);

// A red square in the middle of an empty frame of 10 by 10.
constexpr const char* DRAWING =
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
        std::ofstream(file) << DRAWING;
        parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, SIZE, SIZE}, nullptr, 0);
        preview.Create(RECT{0, 0, SIZE, SIZE}, parent.m_hWnd, 1);
        preview.ShowWindow(SW_SHOW);
    }
    ~PreviewTest() override { std::filesystem::remove(file); }

    bool load() { return preview.loadDrawing(file.wstring()); }
    COLORREF at(int x, int y) const {
        UpdateWindow(preview.m_hWnd);
        const ClientDC dc(preview.m_hWnd);
        return GetPixel(dc, x, y);
    }
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

    const std::filesystem::path file = std::filesystem::temp_directory_path() / "preview_test.wdr";
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
    preview.MoveWindow(RECT{0, 0, SIZE / 2, SIZE / 2});
    EXPECT_EQ(at(50, 50), RED);
    EXPECT_NEAR(square(), SIZE / 10, 1);
}

TEST_F(PreviewTest, TellsOfAFileThatCantBeShown) {
    const AlertCloser alerts;
    EXPECT_FALSE(preview.loadDrawing(L"no such file.wdr"));
    EXPECT_FALSE(probe.hasDatabase());
    ASSERT_TRUE(load());
    std::ofstream(file) << "wexdrawing 1\n";
    EXPECT_FALSE(load());
    EXPECT_FALSE(probe.hasDatabase());
    EXPECT_TRUE(probe.block().empty());
    EXPECT_EQ(at(100, 100), GetSysColor(COLOR_3DFACE));
}

TEST_F(PreviewTest, ShowsNothingForABlockThatIsntThere) {
    ASSERT_TRUE(preview.loadDrawingByPath(file.wstring()));
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
    // Without buttons the mouse does nothing; in mode 0 it forgets a pan.
    mouse(WM_MBUTTONDOWN, 50, 50);
    preview.setMouseMode(0);
    mouse(WM_MOUSEMOVE, 80, 40);
    EXPECT_FALSE(probe.isPanning());
    while (ShowCursor(FALSE) > 0) {
    }
    ShowCursor(TRUE);
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
    const auto objects = [] { return GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS); };
    for (int round = 0; round < 5; ++round) ASSERT_TRUE(load());
    const DWORD before = objects();
    for (int round = 0; round < 200; ++round) ASSERT_TRUE(load());
    EXPECT_LE(objects(), before);
    preview.DestroyWindow();
    EXPECT_FALSE(probe.hasDatabase());
}

}  // namespace
