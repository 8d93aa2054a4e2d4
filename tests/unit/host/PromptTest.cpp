#include "host/runner/Prompt.h"

#include <gtest/gtest.h>

namespace {

class PromptTest : public testing::Test {
  protected:
    PromptTest() {
        m_lisp.setOutput([this](std::u16string_view text) { m_printed += text; });
    }

    // What is printed for the line, errors in angle brackets.
    std::u16string enter(std::u16string_view line) {
        m_printed.clear();
        m_prompt.enter(line);
        return m_printed;
    }

    std::u16string m_printed;
    lisp::Interpreter m_lisp;
    Prompt m_prompt{m_lisp, [this](const std::u16string&) { m_printed += u"<error>"; }};
};

TEST_F(PromptTest, AFormMayTakeSeveralLines) {
    EXPECT_EQ(enter(u"(+ 1"), u"");
    EXPECT_TRUE(m_prompt.isContinuing());
    EXPECT_EQ(enter(u"   2)"), u"3\n");
    EXPECT_FALSE(m_prompt.isContinuing());
    enter(u"(never");
    m_prompt.cancel();
    EXPECT_EQ(enter(u"\"x\""), u"\"x\"\n");
}

TEST_F(PromptTest, ErrorsAndEmptyLinesEndNothing) {
    EXPECT_EQ(enter(u"  \t"), u"");
    EXPECT_EQ(enter(u"(car 5)"), u"<error>");
    EXPECT_EQ(enter(u")"), u"<error>");
    EXPECT_EQ(enter(u"(princ \"no value\") (princ)"), u"no value\n");
}

TEST_F(PromptTest, AWordCallsACommandAndIsASymbolWithoutOne) {
    enter(u"(defun c:hello () 5)");
    enter(u"(setq world 6)");
    EXPECT_EQ(enter(u" Hello "), u"5\n");
    EXPECT_EQ(enter(u"world"), u"6\n");
}

}  // namespace
