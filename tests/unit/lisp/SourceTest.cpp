// From bytes to forms, and the places that errors name.
#include <gtest/gtest.h>

#include <vector>

#include "tests/support/TempFolder.h"
#include "tests/unit/lisp/Session.h"

namespace {

using lisp::Interpreter;

struct SourceFile : TempFolder {
    explicit SourceFile(std::string_view bytes) { file("source.lsp", bytes); }
    std::string form(const char* rest = "") const {
        return "(load \"" + path.string() + "/source.lsp\"" + rest + ")";
    }
};

TEST(SourceFiles, MayBeInAnyUsualEncoding) {
    struct Case {
        const char* name;
        std::string bytes;
    };
    std::string utf16 = "\xFF\xFE", utf16Big = "\xFE\xFF";
    for (char c : std::string("\"\xE9\"\r\n")) {
        utf16 += {c, '\0'};
        utf16Big += {'\0', c};
    }
    for (const Case& c :
         {Case{"UTF-8", "\"\xC3\xA9\""}, Case{"UTF-8 with mark", "\xEF\xBB\xBF\"\xC3\xA9\""},
          Case{"UTF-16", utf16}, Case{"UTF-16 big endian", utf16Big}, Case{"Latin-1", "\"\xE9\""}}) {
        Session session;
        EXPECT_EQ(session.run(SourceFile(c.bytes).form()), "\"\xC3\xA9\"") << c.name;
    }
    Session session;
    EXPECT_EQ(session.run(SourceFile("\"a\r\nb\rc\nd\"").form()), "\"a\\nb\\nc\\nd\"");
    EXPECT_EQ(session.run(SourceFile("").form()), "nil");
    EXPECT_EQ(session.run(SourceFile("\xED\xA0\x80 \xFF \xC0\x80").form()), "nil");
}

TEST(SourceFiles, ErrorsNameFileAndLine) {
    SourceFile file("(setq a 1)\r\n(defun f (x)\r\n  (if x\r\n    (strcat \"a\" x)))\r\n(f 5)\r\n");
    Session session;
    EXPECT_EQ(session.run("\n" + file.form()),
              "error: source.lsp:4: (strcat): argument 2: expected a string, got 5");
    EXPECT_EQ(session.run("\n\n(f (quote (1)))"),
              "error: source.lsp:4: (strcat): argument 2: expected a string, got (1)");
    EXPECT_EQ(session.run("\n(load \"no/such/file.lsp\")"),
              "error: example:2: (load): can't open \"no/such/file.lsp\"");
    EXPECT_EQ(session.run("(load \"no/such/file.lsp\" 'absent)"), "ABSENT");
    SourceFile unclosed("(princ)\n(defun f (x)\n  (g x)\n");
    EXPECT_EQ(session.run(unclosed.form()), "error: source.lsp:2: the list that opens here is not closed");
    // With a stand-in for a missing file, an error inside of the file is still one.
    EXPECT_EQ(session.run(unclosed.form(" 'absent")),
              "error: source.lsp:2: the list that opens here is not closed");
}

TEST(Reading, TakesAHardBlankAndAMarkAsPastingLeavesThem) {
    EXPECT_EQ(Session().run("'(a\u00A0b\uFEFFc)"), "(A B C)");
}

// Of exactly its size, so that a look behind the end is seen.
TEST(Reading, ATextMayBreakOffAnywhere) {
    const std::u16string whole = u"(a . \"\\U+20AC\\101\") ;| b |; 'c ;d\n";
    for (size_t length = 0; length <= whole.size(); ++length) {
        const std::vector<char16_t> cut(whole.begin(), whole.begin() + length);
        Session session;
        try {
            session.lisp.read({cut.data(), cut.size()});
        } catch (const lisp::Error&) {
        }
    }
}

TEST(Prompt, ContinuesUntilTheFormIsWhole) {
    for (const char16_t* whole :
         {u"", u"a", u"(a)", u"(a))", u"\"(\"", u"; (", u"(a ; )\n)", u";| ( |;", u"(\"\\\"(\")"})
        EXPECT_TRUE(Interpreter::isComplete(whole)) << lisp::toUtf8(whole);
    for (const char16_t* open : {u"(", u"(a (b)", u"\"abc", u"\"a\\\"", u"(a ; )", u";| x", u"(\")\""})
        EXPECT_FALSE(Interpreter::isComplete(open)) << lisp::toUtf8(open);
}

}  // namespace
