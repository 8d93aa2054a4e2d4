// Nothing reachable is collected, everything else is, and the limit holds.
#include <gtest/gtest.h>

#include "tests/unit/lisp/Session.h"

namespace {

using lisp::Call;
using lisp::ListBuilder;
using lisp::Root;
using lisp::Value;

TEST(Memory, GarbageOfEveryKindIsTakenBack) {
    Session session;
    auto inUseAfter = [&](const char* program) {
        session.run(program);
        return session.lisp.heapBytesInUse();
    };
    for (const char* program :
         {"(repeat 500000 (list 1 2 3))",
          "(repeat 100000 (strcat \"a long enough text to be on the heap\" \"b\"))",
          "(repeat 100000 (eval (list '+ 1 2)))", "(repeat 100000 (eval '(lambda (x) x)))",
          "(repeat 50000 (eval (list 'lambda '(x) (list 'list 'x))))",
          "(defun f () 1) (repeat 50000 (eval (list 'defun 'f nil 2)))"})
        EXPECT_LT(inUseAfter(program), size_t(32) << 20) << program;
}

TEST(Memory, ValuesInUseOutliveCollections) {
    Session session;
    session.lisp.setCollectAlways(true);
    // Arguments while later ones are evaluated, loop values, results of tests, constants, bindings that are
    // hidden.
    EXPECT_EQ(
        session.run("(list (list \"a\" \"b\") (progn (list 1) (strcat \"c\" \"d\")) (list (strcat \"e\")))"),
        "((\"a\" \"b\") \"cd\" (\"e\"))");
    EXPECT_EQ(
        session.run("(setq n 0) (while (progn (list 1) (< n 3)) (setq n (1+ n)) (strcat \"v\" (itoa n)))"),
        "\"v3\"");
    EXPECT_EQ(session.run("(cond ((list (strcat \"x\"))))"), "(\"x\")");
    EXPECT_EQ(session.run("(foreach x (list (strcat \"p\") (strcat \"q\")) (list x))"), "(\"q\")");
    EXPECT_EQ(session.run("(setq h (list \"outer\")) (defun hide (h) (list 1) (list 2) h) (list (hide 5) h)"),
              "(5 (\"outer\"))");
    EXPECT_EQ(session.run("(reduce (lambda (a b) (list 1) (strcat a b)) (mapcar 'itoa (range 12)))"),
              "\"01234567891011\"");
    EXPECT_EQ(session.run(
                  "(mapcar (lambda (a b) (list 1) (list b a)) (list (list 1) (list 2)) (list \"x\" \"y\"))"),
              "((\"x\" (1)) (\"y\" (2)))");
    EXPECT_EQ(
        session.run("(catch-error (car (strcat \"no \" \"list\")) (lambda (text) (list 1) (strlen text)))"),
        "60");
    EXPECT_EQ(session.run("(+ (strlen (strcat \"ab\" \"c\")) (progn (list 1) 4))"), "7");
    EXPECT_EQ(session.run("(= (strcat \"a\" \"b\") (progn (list 1) (strcat \"a\" \"b\")))"), "T");
}

TEST(Memory, RootsAndBuildersKeepWhatTheyHold) {
    Session session;
    session.lisp.setCollectAlways(true);
    Root first(session.lisp, session.lisp.list({session.lisp.string(u"kept")}));
    {
        Root second(session.lisp, session.lisp.string(u"second"));
        Root third(session.lisp);
        third = session.lisp.cons(second, first);
        session.run("(list 1 2 3)");
        EXPECT_EQ(session.lisp.print(third), u"(\"second\" \"kept\")");
    }
    ListBuilder builder(session.lisp);
    for (int i = 0; i < 3; ++i) {
        builder.add(session.lisp.string(u"text"));
        session.run("(list 1 2 3)");
    }
    builder.finishWith(first);
    session.run("(list 1 2 3)");
    EXPECT_EQ(session.lisp.print(builder.list()), u"(\"text\" \"text\" \"text\" \"kept\")");
}

TEST(Memory, APreparedFormStaysPrepared) {
    Session session;
    session.run("(setq calls 0) (defun act () (setq calls (1+ calls)))");
    Root form(session.lisp, session.lisp.read(u"(act)"));
    session.lisp.eval(form);
    size_t before = session.lisp.heapBytesInUse();
    for (int i = 0; i < 100; ++i) session.lisp.eval(form);
    EXPECT_EQ(session.lisp.heapBytesInUse(), before);
    EXPECT_EQ(session.run("calls"), "101");
    session.run("(defun act () (setq calls 0))");
    session.lisp.eval(form);
    EXPECT_EQ(session.run("calls"), "0");
}

TEST(Memory, TheLimitIsALispErrorAndTheProgramMayGoOn) {
    Session session({.heapBytes = size_t(16) << 20});
    for (const char* program : {"(setq s \"0123456789\") (while T (setq s (strcat s s)))",
                                "(setq s nil) (while T (setq s (cons 1 s)))", "(range 1000000000)",
                                "(setq s '(1)) (while T (setq s (append s s)))"}) {
        std::string result = session.run(program);
        EXPECT_NE(result.find("out of memory"), result.npos) << program << result;
        session.lisp.setSymbol(u"s", Value::nil());
        EXPECT_EQ(session.run("(repeat 5000 (list 1)) (length (range 1000))"), "1000");
    }
}

TEST(Memory, SharedListsAreNotPrintedForever) {
    Session session;
    session.run("(setq x '(1 2)) (repeat 60 (setq x (cons x x)))");
    EXPECT_EQ(session.run("(princ x)"), "error: example:1: (princ): too long to print");
    EXPECT_LT(session.run("(strcat x)").size(), 200u);
}

}  // namespace
