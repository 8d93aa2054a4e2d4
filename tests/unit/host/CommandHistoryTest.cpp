#include "host/runner/CommandHistory.h"

#include <gtest/gtest.h>

namespace {

TEST(CommandHistory, WalksBothWaysAndGivesBackWhatWasTyped) {
    CommandHistory history;
    EXPECT_EQ(history.older(L"typed"), L"typed");
    history.add(L"one");
    history.add(L"two");
    history.add(L"two");
    history.add(L"");
    EXPECT_EQ(history.older(L"typed"), L"two");
    EXPECT_EQ(history.older(L"two"), L"one");
    EXPECT_EQ(history.older(L"one"), L"one");
    EXPECT_EQ(history.newer(L"one"), L"two");
    EXPECT_EQ(history.newer(L"two"), L"typed");
    EXPECT_EQ(history.newer(L"typed"), L"typed");
    // A line that is entered starts the walk anew.
    history.older(L"");
    history.older(L"");
    history.add(L"three");
    EXPECT_EQ(history.older(L"x"), L"three");
    EXPECT_EQ(history.newer(L"three"), L"x");
}

}  // namespace
