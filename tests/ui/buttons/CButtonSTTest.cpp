// What an image button knows of the pointer and tells the dialog manager, on a window of its own. How it
// looks in its states is seen by the session of image buttons.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "src/platform/buttons/CXPStyleButtonST.h"
#include "tests/support/Canvas.h"
#include "tests/support/Messages.h"

#include <oleacc.h>

namespace {

class ImageButton : public testing::Test {
  protected:
    ImageButton() {
        parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, 200, 100}, nullptr, 0);
        window = CreateWindowW(L"Button", L"", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, 0, 0, 60, 40,
                               parent.m_hWnd, nullptr, nullptr, nullptr);
        button.SubclassWindow(window);
    }

    LRESULT dialogCode() const { return button.SendMessage(WM_GETDLGCODE); }

    CWnd parent;
    HWND window = nullptr;
    CXPStyleButtonST button;
};

TEST_F(ImageButton, knowsWhenThePointerIsOverIt) {
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(button.state().hover);
    button.SendMessage(WM_MOUSELEAVE);
    EXPECT_FALSE(button.state().hover);
}

// What assistive programs tell of a window.
std::wstring accessibleName(HWND window) {
    std::wstring told;
    CoInitialize(nullptr);
    IAccessible* object = nullptr;
    AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                               reinterpret_cast<void**>(&object));
    VARIANT self;
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    if (object && object->get_accName(self, &name) == S_OK && name) told = name;
    SysFreeString(name);
    if (object) object->Release();
    CoUninitialize();
    return told;
}

TEST_F(ImageButton, hasANameThatDoesNotShow) {
    const auto plain = dotsOf(window);
    button.setShowsText(false);
    SetWindowTextW(window, L"Open Program");
    EXPECT_EQ(dotsOf(window), plain);
    EXPECT_EQ(accessibleName(window), L"Open Program");
}

HWND tipWindow() {
    HWND found = nullptr;
    const WNDENUMPROC look = [](HWND window, LPARAM to) -> BOOL {
        wchar_t name[32] = {};
        GetClassNameW(window, name, ARRAYSIZE(name));
        if (lstrcmpiW(name, TOOLTIPS_CLASSW) == 0) *reinterpret_cast<HWND*>(to) = window;
        return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), look, reinterpret_cast<LPARAM>(&found));
    return found;
}

TEST_F(ImageButton, saysWhatItDoesOnceThePointerComes) {
    button.setTip(L"Next (Alt+N)");
    EXPECT_FALSE(tipWindow());
    for (int at : {5, 6}) button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(at, at));
    ASSERT_TRUE(tipWindow());
    EXPECT_EQ(SendMessageW(tipWindow(), TTM_GETTOOLCOUNT, 0, 0), 1);
    EXPECT_EQ(tipText(tipWindow(), parent.m_hWnd, reinterpret_cast<UINT_PTR>(window)), L"Next (Alt+N)");
    parent.DestroyWindow();
    EXPECT_FALSE(tipWindow());
}

TEST_F(ImageButton, takesTheDefaultLookAndStillDrawsItself) {
    EXPECT_TRUE(dialogCode() & DLGC_UNDEFPUSHBUTTON);
    button.SendMessage(BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    EXPECT_TRUE(dialogCode() & DLGC_DEFPUSHBUTTON);
    EXPECT_EQ(button.GetStyle() & BS_TYPEMASK, DWORD{BS_OWNERDRAW});
}

// An icon of one color, in the middle of a ground of another.
COLORREF iconOn(COLORREF ground, bool disabled) {
    constexpr int SIDE = 16;
    const std::vector<uint32_t> color(SIDE * SIDE, 0xFF1F5A9A);
    const std::vector<uint8_t> mask(SIDE * SIDE / 8);
    const ButtonIcon icon(
        CreateIcon(nullptr, SIDE, SIDE, 1, 32, mask.data(), reinterpret_cast<const BYTE*>(color.data())));
    const Canvas canvas(SIDE, SIDE);
    const UniqueBrush brush(CreateSolidBrush(ground));
    const RECT all{0, 0, SIDE, SIDE};
    FillRect(canvas.dc(), &all, brush.get());
    icon.draw(canvas.dc(), 0, 0, disabled);
    return canvas.at(SIDE / 2, SIDE / 2);
}

TEST(ButtonIcon, isAsLightOnADarkGroundAsItIsDarkOnALightOne) {
    EXPECT_EQ(iconOn(RGB(255, 255, 255), false), RGB(0x1F, 0x5A, 0x9A));
    EXPECT_EQ(iconOn(RGB(0, 0, 0), false), RGB(0x65, 0xA0, 0xE0));
    // Half as strong, and still to be seen.
    EXPECT_GT(GetRValue(iconOn(RGB(0, 0, 0), true)), 60);
    EXPECT_LT(GetRValue(iconOn(RGB(255, 255, 255), true)), 195);
}

}  // namespace
