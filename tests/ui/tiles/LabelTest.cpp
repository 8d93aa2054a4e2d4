// The height of a label follows its text.
#include <gtest/gtest.h>

#include "src/platform/mfc/Drawing.h"
#include "src/tiles/WexStatic.h"

namespace {

constexpr wchar_t TEXT[] = L"several words";
// What a label is wider and higher than its text.
constexpr int WIDER = 3, HIGHER = 2;

class Label : public testing::Test {
  protected:
    Label() {
        parent.CreateEx(0, L"Static", L"", WS_POPUP, RECT{0, 0, 400, 300}, nullptr, 0);
        label.CreateEx(0, L"Static", L"", WS_CHILD, RECT{5, 7, 105, 107}, parent.m_hWnd, 112);
        label.SetFont(static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT)));
        const ClientDC dc(label.m_hWnd);
        const SelectedObject font(dc, label.GetFont());
        GetTextExtentPoint32W(dc, TEXT, ARRAYSIZE(TEXT) - 1, &text);
    }

    // The label's height after the fit, at that width. Its place and its width stay.
    int fitted(int width) {
        label.MoveWindow({5, 7, 5 + width, 60});
        label.laidOut();
        const RECT rect = label.rectInParent();
        EXPECT_EQ(rect.left, 5);
        EXPECT_EQ(rect.top, 7);
        EXPECT_EQ(rect.right, 5 + width);
        return rect.bottom - rect.top;
    }

    CWnd parent;
    WexStatic label;
    SIZE text{};
};

TEST_F(Label, IsAsHighAsTheLinesOfItsText) {
    label.SetWindowText(TEXT);
    EXPECT_EQ(fitted(text.cx + WIDER), text.cy + HIGHER);
    EXPECT_EQ(fitted(text.cx + WIDER - 1), 2 * text.cy + HIGHER);
    label.SetWindowText(L"one\ntwo\nthree");
    EXPECT_EQ(fitted(300), 3 * text.cy + HIGHER);
}

TEST_F(Label, TellsWhetherItChanged) {
    label.SetWindowText(TEXT);
    EXPECT_TRUE(label.laidOut());
    EXPECT_FALSE(label.laidOut());
    label.SetWindowText(L"");
    EXPECT_FALSE(label.laidOut());
    EXPECT_EQ(fitted(100), 53) << "without a text it stays as it is";
}

TEST_F(Label, FitsItselfWhenItIsSized) {
    label.SetWindowText(TEXT);
    RECT proposed{};
    label.SendMessage(WM_SIZING, WMSZ_BOTTOM, reinterpret_cast<LPARAM>(&proposed));
    EXPECT_FALSE(label.laidOut());
}

}  // namespace
