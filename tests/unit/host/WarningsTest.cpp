#include "host/services/Warnings.h"

#include <gtest/gtest.h>

namespace {

constexpr int32_t UNKNOWN_TILE = 1, ARGUMENT = 2;
const std::vector<std::wstring> KEYS = {L"CAT", L"DESC", L"OK"};

class WarningsTest : public testing::Test {
  protected:
    WarningsTest() : m_warnings(m_lisp) { m_warnings.setMode(WarningMode::on); }

    // Of a call in that line of form.lsp.
    Warnings::Site site(int line, int32_t kind = UNKNOWN_TILE, std::wstring_view function = L"f") {
        m_lisp.evalText(std::u16string(line - 1, u'\n') + u"(list)", u"form.lsp");
        return {m_lisp.placeMark(), function, kind};
    }

    lisp::Interpreter m_lisp;
    Warnings m_warnings;
};

TEST_F(WarningsTest, OneOfAKindIsToldOnceForAFunctionInALine) {
    EXPECT_EQ(m_warnings.tell(site(3), L"no tile"), L"form.lsp:3: f: no tile");
    EXPECT_FALSE(m_warnings.isNew(site(3)));
    EXPECT_EQ(m_warnings.tell(site(3), L"no other tile"), std::nullopt);
    for (const Warnings::Site& other : {site(4), site(3, ARGUMENT), site(3, UNKNOWN_TILE, L"g")}) {
        EXPECT_TRUE(m_warnings.isNew(other));
        EXPECT_TRUE(m_warnings.tell(other, L"no tile"));
        EXPECT_FALSE(m_warnings.tell(other, L"no tile"));
    }
    // Outside of a program, and of a call.
    EXPECT_EQ(m_warnings.tell({{}, L"f", ARGUMENT}, L"no tile"), L"f: no tile");
    EXPECT_EQ(m_warnings.tell({{}, {}, ARGUMENT}, L"no tile"), L"no tile");
}

TEST_F(WarningsTest, TheNearestNameIsToldWhereOneIsNear) {
    auto told = [&, line = 0](std::wstring_view wanted) mutable {
        return *m_warnings.tell(site(++line, UNKNOWN_TILE, {}), L"no", wanted, KEYS);
    };
    EXPECT_EQ(told(L"DSEC"), L"form.lsp:1: no; did you mean \"DESC\"?");
    EXPECT_EQ(told(L"cta"), L"form.lsp:2: no; did you mean \"CAT\"?");
    EXPECT_EQ(told(L"MAKER"), L"form.lsp:3: no");
    EXPECT_EQ(told(L""), L"form.lsp:4: no");
}

TEST_F(WarningsTest, ModesAndWhatIsTakenDecideWhetherTheyFail) {
    m_warnings.setHeard(false);
    EXPECT_FALSE(m_warnings.tell(site(1), L"on purpose"));
    m_warnings.setHeard(true);
    EXPECT_TRUE(m_warnings.tell(site(1), L"now in earnest"));
    EXPECT_FALSE(m_warnings.haveFailed());
    m_warnings.setMode(WarningMode::error);
    EXPECT_TRUE(m_warnings.haveFailed());
    EXPECT_EQ(m_warnings.take(), std::vector<std::wstring>{L"form.lsp:1: f: now in earnest"});
    EXPECT_FALSE(m_warnings.haveFailed());
    m_warnings.setMode(WarningMode::off);
    EXPECT_FALSE(m_warnings.isNew(site(2)));
}

}  // namespace
