// Whatever a handler throws comes out of DoModal, from every kind of callback, and leaves order behind.
#include <stdexcept>

#include "src/platform/mfc/KeptException.h"
#include "tests/ui/mfc/Support.h"

namespace {

struct Throwing {
    const char* name;
    // Readies the dialog so that it throws while it runs.
    void (*prepare)(TestDialog& dialog, Owner& owner);
};

[[noreturn]] void fail() { throw std::runtime_error("handler failed"); }

const Throwing places[] = {
    {"Init", [](TestDialog& dialog, Owner&) { dialog.init = &fail; }},
    {"Paint", [](TestDialog& dialog, Owner&) { dialog.paint = &fail; }},
    {"Destroy",
     [](TestDialog& dialog, Owner& owner) {
         dialog.destroy = &fail;
         owner.steps = {[&] { dialog.EndDialog(0); }};
     }},
    {"Command",
     [](TestDialog& dialog, Owner& owner) {
         dialog.ok = &fail;
         owner.steps = {[&] { dialog.click(1); }};
     }},
    {"PreTranslate",
     [](TestDialog& dialog, Owner& owner) {
         owner.steps = {[&] {
             dialog.preTranslate = &fail;
             dialog.PostMessage(WM_KEYDOWN, VK_TAB);
         }};
     }},
    {"Owner", [](TestDialog&, Owner& owner) { owner.steps = {&fail}; }},
};

struct ExceptionTest : MfcTest {};

TEST_F(ExceptionTest, ComesOutOfTheRun) {
    for (const Throwing& place : places) {
        SCOPED_TRACE(place.name);
        TestDialog dialog(&owner);
        owner.steps.clear();
        place.prepare(dialog, owner);
        EXPECT_THROW(dialog.DoModal(), std::runtime_error);
        EXPECT_EQ(dialog.m_hWnd, nullptr);
        EXPECT_FALSE(dialog.isRunning());
        EXPECT_TRUE(IsWindowEnabled(owner.m_hWnd));
        EXPECT_FALSE(hasKeptException());
    }
}

TEST_F(ExceptionTest, PassesThroughOuterRunsUnlessItIsCaught) {
    TestDialog outer(&owner);
    TestDialog inner(&outer);
    inner.init = &fail;
    bool caught = false;
    outer.ok = [&] {
        try {
            inner.DoModal();
        } catch (const std::runtime_error&) {
            caught = true;
        }
    };
    owner.steps = {[&] { outer.click(1); },
                   [&] {
                       EXPECT_TRUE(caught);
                       EXPECT_TRUE(IsWindowVisible(outer.m_hWnd)) << "the outer dialog runs on";
                       outer.ok = [&] { inner.DoModal(); };
                       outer.click(1);
                   }};
    EXPECT_THROW(outer.DoModal(), std::runtime_error);
    EXPECT_TRUE(IsWindowEnabled(owner.m_hWnd));
}

TEST_F(ExceptionTest, FirstOfSeveralIsTheOneThatCounts) {
    TestDialog dialog(&owner);
    dialog.ok = &fail;
    dialog.destroy = [] { throw std::logic_error("a consequence"); };
    owner.steps = {[&] { dialog.click(1); }};
    EXPECT_THROW(dialog.DoModal(), std::runtime_error);
}

TEST_F(ExceptionTest, ModelessCreationRaisesToo) {
    TestDialog dialog(&owner);
    dialog.init = &fail;
    EXPECT_THROW(dialog.Create(), std::runtime_error);

    // A paint that fails counts as done: a loop of the platform's own, a message box, must come to rest.
    dialog.paint = &fail;
    dialog.Invalidate();
    int messages = 0;
    for (MSG message; messages < 1000 && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE); ++messages)
        DispatchMessageW(&message);
    EXPECT_LT(messages, 1000);
    EXPECT_THROW(raiseKeptException(), std::runtime_error);
}

}  // namespace
