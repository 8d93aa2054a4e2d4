#include "src/listctrl/TableText.h"

#include <gtest/gtest.h>

namespace {

TEST(TableText, IsOneLineForEachRowWithTabsBetweenItsCells) {
    EXPECT_EQ(tableText({}), L"");
    EXPECT_EQ(tableText({{L"Name", L"Size"}, {L"a", L""}}), L"Name\tSize\r\na\t\r\n");
    EXPECT_EQ(tableText({{L"a\tb", L"c\r\nd"}}), L"a b\tc  d\r\n") << "cells can't look like more cells";
}

}  // namespace
