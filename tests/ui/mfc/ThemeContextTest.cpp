// A module's own manifest gives its dialogs the themed controls in a program that has none.
#include "tests/ui/mfc/Support.h"

namespace {

struct ThemeContextTest : MfcTest {
    // Only the themed button knows this message.
    static bool isThemed(HWND button) {
        SIZE size{};
        return ::SendMessageW(button, BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(&size)) && size.cx > 0;
    }
};

TEST_F(ThemeContextTest, LibraryMakesThemedControlsAndLeavesTheRestAlone) {
    TestDialog dialog(&owner);
    ASSERT_TRUE(dialog.Create());
    EXPECT_TRUE(isThemed(::GetDlgItem(dialog.m_hWnd, 1)));
    CWnd created;
    ASSERT_TRUE(created.CreateEx(0, L"Button", L"x", WS_CHILD, RECT{0, 0, 9, 9}, owner.m_hWnd, 1));
    EXPECT_TRUE(isThemed(created.m_hWnd));

    const HWND hosts =
        CreateWindowExW(0, L"Button", L"x", WS_CHILD, 0, 0, 9, 9, owner.m_hWnd, nullptr, nullptr, nullptr);
    EXPECT_FALSE(isThemed(hosts));
}

}  // namespace
