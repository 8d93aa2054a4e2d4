// Bulk work on a control shows at once, when the redraw is released.
#include "src/platform/mfc/RedrawHold.h"

#include "tests/ui/mfc/Support.h"

namespace {

struct RedrawHoldTest : MfcTest {
    HWND make(DWORD style) const {
        return CreateWindowW(L"Static", L"", WS_CHILD | style, 0, 0, 50, 20, owner.m_hWnd, nullptr, nullptr,
                             nullptr);
    }
    static bool needsPaint(HWND window) { return GetUpdateRect(window, nullptr, FALSE); }
};

TEST_F(RedrawHoldTest, AHeldControlPaintsAnewWhenItIsReleased) {
    const HWND control = make(WS_VISIBLE);
    UpdateWindow(control);
    holdRedraw(control);
    holdRedraw(control);
    InvalidateRect(control, nullptr, TRUE);
    EXPECT_FALSE(needsPaint(control));
    releaseRedraw();
    EXPECT_TRUE(needsPaint(control));
    ValidateRect(control, nullptr);
    releaseRedraw();
    EXPECT_FALSE(needsPaint(control)) << "released once";
}

TEST_F(RedrawHoldTest, AMessageBoxStandsBesideWhatWasHeldBefore) {
    TestDialog dialog(&owner);
    bool drawn = false;
    owner.steps = {[&] { dialog.click(1); }};
    dialog.ok = [&] {
        owner.waits = true;
        const HWND control = CreateWindowW(L"Static", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, dialog.m_hWnd,
                                           nullptr, nullptr, nullptr);
        dialog.timer = [&] {
            drawn = GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE;
            ::PostMessageW(GetLastActivePopup(dialog.m_hWnd), WM_COMMAND, IDOK, 0);
        };
        holdRedraw(control);
        SetTimer(dialog.m_hWnd, 1, 30, nullptr);
        MessageBoxW(dialog.m_hWnd, L"Text", L"Box", MB_OK);
        dialog.EndDialog(IDOK);
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_TRUE(drawn);
}

TEST_F(RedrawHoldTest, WhatIsShownOrHiddenMeanwhileStaysSo) {
    const HWND hidden = make(0), shown = make(WS_VISIBLE);
    holdRedraw(hidden);
    holdRedraw(shown);
    showControl(hidden, true);
    showControl(shown, false);
    releaseRedraw();
    EXPECT_TRUE(IsWindowVisible(hidden));
    EXPECT_FALSE(IsWindowVisible(shown));
    // The latter stays hidden; one that is gone is passed over.
    for (const HWND control : {shown, hidden}) holdRedraw(control);
    DestroyWindow(hidden);
    releaseRedraw();
    EXPECT_FALSE(IsWindowVisible(shown));
}

}  // namespace
