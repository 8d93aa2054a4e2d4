// How programs behave where it is easy to get wrong.
#include <gtest/gtest.h>

#include <fstream>
#include <memory>

#include "tests/unit/lisp/Session.h"

TEST(Language, GivesWhatItsTableSays) {
    for (const bool collectAlways : {false, true}) {
        std::ifstream table(WEX_SOURCE_FOLDER "/tests/unit/lisp/language.txt");
        auto session = std::make_unique<Session>();
        int rows = 0;
        for (std::string line; std::getline(table, line);) {
            if (line.empty()) session = std::make_unique<Session>();
            const size_t arrow = line.rfind(" => ");
            if (arrow == line.npos || line[0] == ';') continue;
            std::string form = line.substr(0, arrow);
            for (size_t at; (at = form.find("\u23CE")) != form.npos;) form.replace(at, 3, "\n");
            session->lisp.setCollectAlways(collectAlways);
            EXPECT_EQ(session->run(form), line.substr(arrow + 4)) << line;
            ++rows;
        }
        EXPECT_GT(rows, 60);
    }
}

TEST(Functions, EachFormLeavesTheStackOfValuesAsItWas) {
    for (const char* form :
         {"((lambda (x) x) 1)", "(foreach x '(1 2) x)", "(while nil)", "(catch-error (car 5))",
          "(catch-error (car 5) strlen)", "(catch-error (f 1 2 3) f)", "(+ 1 2)",
          "(catch-error (+ 1.5 \"a\"))", "(mapcar 'f '(1 2))", "(eval '(f 1))", "(sort '(2 1 3) '<)",
          "(apply 'list '(1 2 3))"}) {
        Session session({.stackBytes = 64 * 1024});
        std::string program = std::string("(defun f (x / y) x) (repeat 10000 ") + form + ") 'done";
        EXPECT_EQ(session.run(program), "DONE") << form;
    }
}

TEST(Output, GoesWhereItIsSentAndEndsInNoValue) {
    Session session;
    EXPECT_EQ(
        session.run(
            "(princ \"a\\n\") (prin1 \"a\\n\") (print 'b) (princ 1.0) (terpri) (write-line \"c\") (princ)"),
        "");
    EXPECT_EQ(session.output, "a\n\"a\\n\"\nB 1.0\nc\n");
    EXPECT_EQ(session.run("(setq v (princ)) (list v (eq v nil) (if (princ) 1 2))"), "(nil T 2)");
    EXPECT_EQ(session.run("(defun quiet () (princ)) (quiet)"), "");
    EXPECT_EQ(session.run("(list (quiet))"), "(nil)");
    EXPECT_EQ(session.run("(type (quiet))"), "nil");
}
