// One wrapper for each window: who has it, and how long it lives.
#include <memory>
#include <string>

#include "src/platform/mfc/Controls.h"
#include "src/platform/mfc/WindowClass.h"
#include "tests/ui/mfc/Support.h"

namespace {

WNDPROC procedureOf(HWND window) {
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC));
}

HWND g_reached = nullptr;
WNDPROC g_below = nullptr;

LRESULT CALLBACK stranger(HWND window, UINT message, WPARAM w, LPARAM l) {
    if (message == WM_USER) g_reached = window;
    return CallWindowProcW(g_below, window, message, w, l);
}

// The procedure of a window of the narrow kind, to which texts come as bytes.
std::string g_narrowText;

LRESULT CALLBACK narrow(HWND window, UINT message, WPARAM w, LPARAM l) {
    if (message == WM_SETTEXT) g_narrowText = reinterpret_cast<const char*>(l);
    return DefWindowProcA(window, message, w, l);
}

struct WindowTableTest : MfcTest {
    HWND item(const CDialog& dialog, int id) { return ::GetDlgItem(dialog.m_hWnd, id); }
};

TEST_F(WindowTableTest, OnDemandWrapperNamesItsWindowAndLeavesItAlone) {
    TestDialog dialog(&owner);
    ASSERT_TRUE(dialog.Create());
    const HWND edit = item(dialog, 110);
    const WNDPROC before = procedureOf(edit);
    CWnd* wrapper = CWnd::FromHandle(edit);
    EXPECT_EQ(wrapper, dialog.GetDlgItem(110));
    EXPECT_EQ(CWnd::FromHandlePermanent(edit), nullptr);
    EXPECT_EQ(procedureOf(edit), before);
    EXPECT_EQ(dialog.GetDlgItem(999), nullptr);
    EXPECT_EQ(CWnd::FromHandle(dialog.m_hWnd), &dialog);

    ::DestroyWindow(edit);
    EXPECT_FALSE(wrapper->isLive());
    CWnd* press = dialog.GetDlgItem(111);
    press->DestroyWindow();
    EXPECT_EQ(press->m_hWnd, nullptr);
    CWnd* tree = dialog.GetDlgItem(112);
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(tree->m_hWnd, nullptr) << "a handle that may come back must not be kept";
    EXPECT_EQ(wrapper->m_hWnd, nullptr);
}

TEST_F(WindowTableTest, PermanentWrapperTakesOverFromAnOnDemandOne) {
    CEdit edit;
    CEdit second;
    TestDialog dialog(&owner);
    ASSERT_TRUE(dialog.Create());
    CWnd* onDemand = dialog.GetDlgItem(110);
    ASSERT_TRUE(edit.SubclassWindow(::GetDlgItem(dialog.m_hWnd, 110)));
    EXPECT_EQ(onDemand->m_hWnd, nullptr);
    EXPECT_EQ(dialog.GetDlgItem(110), &edit);
    EXPECT_TRUE(edit.SubclassWindow(::GetDlgItem(dialog.m_hWnd, 110))) << "attached already";
    EXPECT_FALSE(edit.SubclassWindow(::GetDlgItem(dialog.m_hWnd, 111)));
    EXPECT_FALSE(second.SubclassWindow(::GetDlgItem(dialog.m_hWnd, 110)));
    EXPECT_FALSE(second.SubclassWindow(::GetDlgItem(dialog.m_hWnd, 999)));
    EXPECT_EQ(edit.m_hWnd, item(dialog, 110));
    dialog.DestroyWindow();
    EXPECT_EQ(edit.m_hWnd, nullptr);
}

TEST_F(WindowTableTest, WindowOfTheNarrowKindGetsItsTextsAsBefore) {
    WNDCLASSA request{};
    request.lpfnWndProc = &narrow;
    request.lpszClassName = "Narrow";
    RegisterClassA(&request);
    const HWND window =
        CreateWindowExA(0, "Narrow", "", WS_CHILD, 0, 0, 9, 9, owner.m_hWnd, nullptr, nullptr, nullptr);
    CWnd wrapper;
    ASSERT_TRUE(wrapper.SubclassWindow(window));
    wrapper.SetWindowText(L"text");
    EXPECT_EQ(g_narrowText, "text");
    EXPECT_EQ(wrapper.className(), L"Narrow");
}

TEST_F(WindowTableTest, UnsubclassedWindowWorksOnWithItsOwnProcedure) {
    TestDialog dialog(&owner);
    ASSERT_TRUE(dialog.Create());
    const HWND window = item(dialog, 110);
    const WNDPROC before = procedureOf(window);
    {
        CEdit edit;
        edit.SubclassWindow(window);
        EXPECT_NE(procedureOf(window), before);
    }
    EXPECT_EQ(procedureOf(window), before);
    EXPECT_TRUE(IsWindow(window)) << "only what an object created goes with it";

    // A procedure that somebody put over the library's keeps its way down to the window's own.
    auto edit = std::make_unique<CEdit>();
    edit->SubclassWindow(window);
    g_below = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&stranger)));
    edit.reset();
    SetWindowTextW(window, L"through");
    ::SendMessageW(window, WM_USER, 0, 0);
    EXPECT_EQ(g_reached, window);
    EXPECT_EQ(CWnd::FromHandle(window)->GetWindowText(), L"through");
    CEdit again;
    EXPECT_TRUE(again.SubclassWindow(window));
    EXPECT_EQ(again.GetWindowText(), L"through");
}

TEST_F(WindowTableTest, CreatedWindowBelongsToItsObjectFromTheFirstMessageToTheLast) {
    const WindowClass frame(L"MfcTestFrame", nullptr);
    HWND window = nullptr;
    {
        Noting<CWnd> noting;
        ASSERT_TRUE(noting.CreateEx(0, L"MfcTestFrame", L"", WS_CHILD, RECT{1, 2, 31, 42}, owner.m_hWnd, 7));
        window = noting.m_hWnd;
        EXPECT_EQ(std::count(noting.seen.begin(), noting.seen.end(), UINT{WM_NCCREATE}), 1);
        EXPECT_EQ(std::count(noting.seen.begin(), noting.seen.end(), UINT{WM_CREATE}), 1);
        EXPECT_EQ(noting.GetDlgCtrlID(), 7);
        const RECT rect = noting.rectInParent();
        EXPECT_TRUE(rect.left == 1 && rect.top == 2 && rect.right == 31 && rect.bottom == 42);
    }
    EXPECT_FALSE(IsWindow(window));

    Noting<CWnd> failing;
    EXPECT_FALSE(failing.CreateEx(0, L"NoSuchClass", L"", WS_CHILD, RECT{}, owner.m_hWnd, 7));
    CWnd next;
    ASSERT_TRUE(next.CreateEx(0, L"Static", L"", WS_CHILD, RECT{}, owner.m_hWnd, 8));
    EXPECT_TRUE(failing.seen.empty()) << "a window that wasn't made must not take the next one";
}

TEST_F(WindowTableTest, WrapperOfAWindowOutsideOfAllDialogsStays) {
    const HWND desktop = GetDesktopWindow();
    CWnd* wrapper = CWnd::FromHandle(desktop);
    { TestDialog(&owner).Create(); }
    EXPECT_EQ(CWnd::FromHandle(desktop), wrapper);
    EXPECT_TRUE(wrapper->isLive());
}

}  // namespace
