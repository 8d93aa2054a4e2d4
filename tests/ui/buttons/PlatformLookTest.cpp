// An image button without an icon beside the platform's own push button: a person can't tell them apart in
// any state. Windows may set a text off by a pixel; Wine, where this runs, doesn't.
#include <gtest/gtest.h>

#include <vector>

#include "src/platform/buttons/CXPStyleButtonST.h"
#include "tests/support/Canvas.h"

namespace {

using Pixels = std::vector<uint32_t>;

constexpr int WIDTH = 90, HEIGHT = 28;

class ButtonPair {
  public:
    ButtonPair() {
        m_parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, 300, 100}, nullptr, 0);
        platforms = make(10);
        ours = make(150);
        m_button.SetThemeHelper(&m_helper);
        m_button.SubclassWindow(ours);
        NONCLIENTMETRICSW metrics{};
        metrics.cbSize = sizeof metrics;
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
        m_font.reset(CreateFontIndirectW(&metrics.lfMessageFont));
        send(WM_SETFONT, reinterpret_cast<WPARAM>(m_font.get()));
    }

    void send(UINT message, WPARAM w = 0, LPARAM l = 0) {
        for (const HWND window : {platforms, ours}) SendMessageW(window, message, w, l);
    }
    void enable(bool enabled) {
        for (const HWND window : {platforms, ours}) EnableWindow(window, enabled);
    }

    // The platform's and ours, each with the focus while it is asked if `focused`.
    Pixels shownBy(HWND window, bool focused) const {
        SetFocus(focused ? window : m_parent.m_hWnd);
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        return dotsOf(window);
    }

    // Where both differ: "12 pixels, the first at 3,4"; empty where nowhere.
    std::string difference(bool focused = false) const {
        const Pixels wanted = shownBy(platforms, focused), got = shownBy(ours, focused);
        size_t count = 0, first = 0;
        for (size_t at = 0; at < wanted.size(); ++at)
            if (wanted[at] != got[at] && count++ == 0) first = at;
        if (count == 0) return {};
        return std::to_string(count) + " pixels, the first at " + std::to_string(first % WIDTH) + "," +
               std::to_string(first / WIDTH);
    }

    HWND platforms = nullptr, ours = nullptr;

  private:
    HWND make(int left) {
        return CreateWindowW(L"Button", L"&Apply", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, left, 10, WIDTH,
                             HEIGHT, m_parent.m_hWnd, nullptr, nullptr, nullptr);
    }

    CWnd m_parent;
    CThemeHelperST m_helper;
    CXPStyleButtonST m_button;
    UniqueFont m_font;
};

TEST(ButtonBesideThePlatforms, LooksTheSameInEveryState) {
    ButtonPair pair;
    const Pixels plain = pair.shownBy(pair.platforms, false);
    EXPECT_EQ(pair.difference(), "") << "normal";

    pair.send(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    pair.send(WM_MOUSEHOVER, 0, MAKELPARAM(5, 5));
    // Only themes have such a look.
    EXPECT_EQ(pair.shownBy(pair.ours, false) != plain, IsThemeActive() != FALSE);
    EXPECT_EQ(pair.difference(), "") << "hot";
    pair.send(WM_MOUSELEAVE);
    EXPECT_EQ(pair.shownBy(pair.platforms, false), plain);

    pair.send(BM_SETSTATE, TRUE);
    EXPECT_NE(pair.shownBy(pair.platforms, false), plain);
    EXPECT_EQ(pair.difference(), "") << "pressed";
    pair.send(BM_SETSTATE, FALSE);

    pair.send(BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    EXPECT_NE(pair.shownBy(pair.ours, false), plain);
    EXPECT_EQ(pair.difference(), "") << "default";
    pair.send(BM_SETSTATE, TRUE);
    EXPECT_EQ(pair.difference(), "") << "default and pressed";
    pair.send(BM_SETSTATE, FALSE);
    pair.send(BM_SETSTYLE, BS_PUSHBUTTON, TRUE);

    pair.enable(false);
    EXPECT_NE(pair.shownBy(pair.platforms, false), plain);
    EXPECT_EQ(pair.difference(), "") << "disabled";
    pair.enable(true);
}

// Whether the keyboard is in use can't be told to windows under Wine, which shows focus and mnemonics always.
TEST(ButtonBesideThePlatforms, ShowsTheFocusAsThePlatformsDoes) {
    ButtonPair pair;
    EXPECT_EQ(pair.difference(true), "");
    EXPECT_NE(pair.shownBy(pair.ours, true), pair.shownBy(pair.ours, false));
}

}  // namespace
