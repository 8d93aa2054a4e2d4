#include "src/platform/base/Text.h"

#include <gtest/gtest.h>

#include "src/platform/base/CObject.h"

namespace {

TEST(Text, DecimalNumberReadsWhatTheRunTimeReads) {
    EXPECT_EQ(decimalNumber(L"12"), 12);
    EXPECT_EQ(decimalNumber(L" \t-7x"), -7);
    EXPECT_EQ(decimalNumber(L"+3"), 3);
    EXPECT_EQ(decimalNumber(L"abc"), 0);
    EXPECT_EQ(decimalNumber(L""), 0);
    EXPECT_EQ(decimalNumber(L"- 5"), 0);
    EXPECT_EQ(decimalNumber(L"99999999999999999999"), 2147483647);
    EXPECT_EQ(decimalNumber(L"-99999999999999999999"), -2147483647 - 1);
}

TEST(Text, BlanksAndCase) {
    EXPECT_EQ(trimBlanksRight(L" a \t "), L" a \t");
    EXPECT_EQ(without(L"a<< b<<", L"<< "), L"ab<<");
    EXPECT_TRUE(equalIgnoringCase(L"Add_Rec", L"ADD_rec"));
    EXPECT_FALSE(equalIgnoringCase(L"a", L"ab"));
}

class Animal : public CObject {
    DECLARE_DYNAMIC(Animal)
};
IMPLEMENT_DYNAMIC(Animal, CObject)
class Cat : public Animal {};

TEST(RuntimeClass, AClassWithoutOneAnswersWithItsBase) {
    const Cat cat;
    EXPECT_EQ(cat.GetRuntimeClass(), RUNTIME_CLASS(Animal));
    EXPECT_TRUE(cat.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(CObject().IsKindOf(RUNTIME_CLASS(Animal)));
}

}  // namespace
