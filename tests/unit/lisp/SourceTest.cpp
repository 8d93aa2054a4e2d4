// From bytes to forms, and the places that errors name.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include "tests/unit/lisp/Session.h"

namespace {

using lisp::Interpreter;

struct SourceFile {
    explicit SourceFile(std::string_view bytes)
        : path(std::filesystem::temp_directory_path() / ("source-" + std::to_string(getpid()) + ".lsp")) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
    ~SourceFile() { std::filesystem::remove(path); }
    std::string form(const char* rest = "") const { return "(load \"" + path.string() + "\"" + rest + ")"; }
    std::filesystem::path path;
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
    std::string name = file.path.filename().string();
    EXPECT_EQ(session.run("\n" + file.form()),
              "error: " + name + ":4: (strcat): argument 2: expected a string, got 5");
    EXPECT_EQ(session.run("\n\n(f (quote (1)))"),
              "error: " + name + ":4: (strcat): argument 2: expected a string, got (1)");
    EXPECT_EQ(session.run("\n(load \"no/such/file.lsp\")"),
              "error: example:2: (load): can't open \"no/such/file.lsp\"");
    EXPECT_EQ(session.run("(load \"no/such/file.lsp\" 'absent)"), "ABSENT");
    SourceFile unclosed("(princ)\n(defun f (x)\n  (g x)\n");
    EXPECT_EQ(session.run(unclosed.form()), "error: " + name + ":2: the list that opens here is not closed");
    // With a stand-in for a missing file, an error inside of the file is still one.
    EXPECT_EQ(session.run(unclosed.form(" 'absent")),
              "error: " + name + ":2: the list that opens here is not closed");
}

TEST(SourceFiles, QuotedFormsKeepTheirLines) {
    Session session;
    EXPECT_EQ(session.run("(setq form '(progn\n (car\n 5)))\n(eval form)"),
              "error: example:2: (car): argument 1: expected a list, got 5");
    EXPECT_EQ(session.run("\n\n(eval (list 'car 7))"),
              "error: example:3: (car): argument 1: expected a list, got 7");
}

TEST(Reading, TellsWhatIsWrong) {
    struct Case {
        const char* text;
        const char* message;
    };
    for (const Case& c :
         {Case{"\n(a\n(b)", "2: the list that opens here is not closed"},
          Case{"1\n\"abc\n", "2: the string that opens here is not closed"},
          Case{"\"abc\\", "1: the string that opens here is not closed"},
          Case{"\n)", "2: a closing parenthesis without an opening one"},
          Case{"(a . )", "1: nothing after the dot"},
          Case{"(a . b c)", "1: more than one form after the dot"},
          Case{"(a . b", "1: the list that opens here is not closed"},
          Case{"(a .", "1: nothing after the dot"}, Case{"'", "1: nothing after the quote mark"},
          Case{";| never", "1: the comment that opens here is not closed"},
          Case{" . ", "1: a dot outside of a list"}}) {
        Session session;
        EXPECT_EQ(session.run(c.text), std::string("error: example:") + c.message) << c.text;
    }
}

TEST(Reading, KnowsTheSyntax) {
    Session session;
    EXPECT_EQ(session.run("'(a;comment\n b;|block\n ) |;c'd\"e\"f)"), "(A B C (QUOTE D) \"e\" F)");
    EXPECT_EQ(session.run("\"\\101\\x\\U+20AC\\U+zz\\e\\1\""), "\"Ax\xE2\x82\xACU+zz\\e\\001\"");
    EXPECT_EQ(session.run("'(a.b a. .5 (a .5) (a . 5) 1+ 1e -x:y$)"),
              "(A.B A. 0.5 (A 0.5) (A . 5) 1+ 1E -X:Y$)");
    // A hard blank and a byte order mark inside a text, as pasting leaves them.
    EXPECT_EQ(session.run("'(a\xC2\xA0"
                          "b\xEF\xBB\xBF"
                          "c)"),
              "(A B C)");
    EXPECT_EQ(session.run("(read \"\")"), "nil");
    EXPECT_EQ(session.run("\n(read \"(\")"),
              "error: example:2: (read): the list that opens here is not closed");
    EXPECT_EQ(session.run("(list (read \"nil\") (read \"t\") 'nil 't)"), "(nil T nil T)");
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

TEST(Reading, WhatIsPrintedReadsBack) {
    Session session;
    EXPECT_EQ(session.run("(setq x (list 0.1 -1e-7 1e22 123456789.123 \"q\\\"\\\\\\n\\t\" 'sym '(1 . 2)))"
                          "(equal x (read (prin1-to-string x)))"),
              "T");
}

TEST(Prompt, ContinuesUntilTheFormIsWhole) {
    for (const char16_t* whole :
         {u"", u"a", u"(a)", u"(a))", u"\"(\"", u"; (", u"(a ; )\n)", u";| ( |;", u"(\"\\\"(\")"})
        EXPECT_TRUE(Interpreter::isComplete(whole)) << lisp::toUtf8(whole);
    for (const char16_t* open : {u"(", u"(a (b)", u"\"abc", u"\"a\\\"", u"(a ; )", u";| x", u"(\")\""})
        EXPECT_FALSE(Interpreter::isComplete(open)) << lisp::toUtf8(open);
}

}  // namespace
