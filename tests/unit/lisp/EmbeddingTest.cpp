// The interpreter as its host uses it.
#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

#include "tests/unit/lisp/Session.h"

namespace {

using lisp::Call;
using lisp::Error;
using lisp::Interrupted;
using lisp::Root;
using lisp::Value;

TEST(NativeFunctions, GetCheckedArgumentsAndTheirData) {
    Session session;
    int calls = 0;
    session.lisp.defineNative(
        u"join-number",
        [](Call& call) {
            ++*static_cast<int*>(call.userData);
            return call.lisp.string(call.text(0) + lisp::decimal(int64_t(call.integerOr(1, 7))));
        },
        &calls, 1, 2);
    EXPECT_EQ(session.run("(list (JOIN-number \"a\") (join-number \"b\" 2))"), "(\"a7\" \"b2\")");
    EXPECT_EQ(session.run("(join-number \"b\" 2.5)"),
              "error: example:1: (join-number): argument 2: expected an integer, got 2.5");
    EXPECT_EQ(session.run("(join-number)"),
              "error: example:1: (join-number): expected 1 to 2 arguments, got 0");
    EXPECT_EQ(calls, 3);
    session.lisp.undefine(u"Join-Number");
    EXPECT_EQ(session.run("(join-number \"a\")"), "error: example:1: (join-number): no such function");
}

TEST(NativeFunctions, MayUndefineThemselvesWhileTheyAreUsed) {
    for (const char* program : {"(once 1)", "(car (mapcar 'once '(1 2)))",
                                "(progn (sort '(2 1 3) 'once) '(1 2))", "(reduce 'once '(1 2 3))"}) {
        Session session;
        session.lisp.setCollectAlways(true);
        session.lisp.defineNative(u"once", [](Call& call) {
            call.lisp.undefine(u"once");
            return call.lisp.evalText(u"(list 1 2)", u"inner");
        });
        EXPECT_EQ(session.run(program), "(1 2)") << program;
        EXPECT_EQ(session.run("(catch-error (once))"), "\"example:1: (once): no such function\"");
    }
}

TEST(NativeFunctions, ForeignExceptionsPassAndLeaveTheInterpreterWhole) {
    Session session;
    session.lisp.defineNative(u"fail", [](Call&) -> Value { throw std::runtime_error("outside"); });
    EXPECT_THROW(session.run("(setq a 1) (defun f (a) (catch-error (fail))) (f 2)"), std::runtime_error);
    EXPECT_EQ(session.run("(list a (+ 1 2))"), "(1 3)");
}

TEST(Apply, TellsAMissingFunctionFromAnError) {
    Session session;
    Value five = Value::integer(5);
    session.run("(defun c:Ev (x) (1+ x)) (setq listed '(lambda (x) (* x x)))");
    EXPECT_EQ(session.lisp.apply(u"C:EV", {&five, 1})->asInteger(), 6);
    EXPECT_EQ(session.lisp.apply(u"listed", {&five, 1})->asInteger(), 25);
    EXPECT_FALSE(session.lisp.apply(u"no-such", {}).has_value());
    EXPECT_FALSE(session.lisp.apply(u"pi", {}).has_value());
    EXPECT_FALSE(session.lisp.apply(u"setq", {}).has_value());
    EXPECT_THROW(session.lisp.apply(u"car", {&five, 1}), Error);
    EXPECT_THROW(session.lisp.apply(u"c:ev", {}), Error);
}

TEST(Reentry, ErrorsPassThroughNestedCallsWithTheirOwnPlace) {
    Session session;
    session.lisp.defineNative(u"again", [](Call& call) {
        Value argument = call[0];
        return *call.lisp.apply(u"inner", {&argument, 1});
    });
    session.run("(defun inner (x)\n(if (= x 0)\n(car 1)\n(again (1- x))))");
    EXPECT_EQ(session.run("\n\n\n\n\n(again 3)"),
              "error: example:3: (car): argument 1: expected a list, got 1");
    EXPECT_EQ(session.run("(defun inner (x) (list x)) (again 3)"), "(3)");
}

TEST(Recursion, IsAnErrorWhereverItRunsThrough) {
    Session session({.stackBytes = 256 * 1024});
    session.lisp.defineNative(u"host", [](Call& call) { return call.lisp.evalText(u"(h)", u"inner"); });
    std::string tooDeep = "nested too deeply";
    for (std::string program :
         {"(defun f () (1+ (f))) (f)", "(defun f () (apply 'f nil)) (f)", "(defun f () (eval '(f))) (f)",
          "(defun f () (mapcar '(lambda (x) (f)) '(1))) (f)",
          "(defun f () (sort '(1 2) '(lambda (a b) (f)))) (f)", "(defun f () (foreach x '(1) (f))) (f)",
          "(defun h () (host)) (h)", "(defun f () (eval (list 'quote (f)))) (f)"}) {
        std::string result = session.run(program);
        EXPECT_NE(result.find(tooDeep), result.npos) << program << result;
    }
    EXPECT_EQ(session.run("(defun count (n) (if (= n 0) 0 (1+ (count (1- n))))) (count 100)"), "100");
}

TEST(Recursion, IsAnErrorInDeepDataToo) {
    Session session({.stackBytes = 256 * 1024});
    auto nested = [](const char* open, const char* close, int depth) {
        std::string text;
        for (int i = 0; i < depth; ++i) text += open;
        text += "1";
        for (int i = 0; i < depth; ++i) text += close;
        return text;
    };
    for (std::string program : {nested("(", ")", 100000), nested("'", "", 100000)})
        EXPECT_EQ(session.run(program), "error: example:1: nested too deeply");
    session.run("(setq x nil) (repeat 100000 (setq x (list x)))");
    for (const char* use : {"(princ x)", "(equal x (list x))", "(equal x (read \"((1))\"))", "(eval x)"})
        session.run(use);
    EXPECT_EQ(session.run("(setq y nil) (repeat 100000 (setq y (list y))) (equal x y)").find("error"), 0u);
}

// Analysed where there is room, and run where there is ever less.
TEST(Recursion, IsAnErrorInDeepFormsToo) {
    for (const char* open :
         {"(1+ ", "(if 1 ", "(progn 1 ", "(setq a ", "(and 1 ", "(cond (1 ", "(catch-error "}) {
        Session session;
        std::string form = "1";
        for (int i = 0; i < 100; ++i) form = open + form + (std::string(open) == "(cond (1 " ? "))" : ")");
        EXPECT_EQ(session.run("(defun deep () " + form + ")"), "DEEP");
        EXPECT_EQ(session.run("(defun dig (n) (if (> n 0) (1+ (dig (1- n))) (progn (deep) 0)))"
                              "(setq n 1) (while (numberp (catch-error (dig n))) (setq n (1+ n))) (> n 10)"),
                  "T");
    }
}

TEST(Stopping, AnInterruptEndsAnyLoopAndIsNotCaught) {
    for (const char* program :
         {"(while T)", "(defun f () T) (while (f))", "(repeat 2000000000)",
          "(while T (catch-error (while T)))", "(sort (range 1000000) '(lambda (a b) (while T)))"}) {
        Session session;
        std::thread other([&] { session.lisp.interrupt(); });
        EXPECT_EQ(session.run(program).substr(0, 5), "error") << program;
        other.join();
        session.lisp.clearInterrupt();
        EXPECT_EQ(session.run("(+ 1 2)"), "3");
    }
}

TEST(Stopping, StepsAreCounted) {
    Session session({.steps = 10000});
    EXPECT_EQ(session.run("(repeat 1000 (+ 1 2 3))"), "6");
    EXPECT_EQ(session.run("\n(catch-error (while T (strcat)))"),
              "error: example:2: (strcat): too many steps");
    EXPECT_THROW(session.lisp.evalText(u"(strcat)", u"example"), Interrupted);
    session.lisp.clearInterrupt();
    EXPECT_EQ(session.run("(strcat)"), "\"\"");
    EXPECT_EQ(session.lisp.place().text(), u"example:1");
}

TEST(Symbols, AreSetAndReadByNameInAnyCase) {
    Session session;
    session.lisp.setSymbol(u"$Value", session.lisp.list({Value::integer(1), Value::real(2.5)}));
    EXPECT_EQ(session.run("(list $value $VALUE)"), "((1 2.5) (1 2.5))");
    session.run("(setq $key \"k\")");
    EXPECT_EQ(session.lisp.getSymbol(u"$KEY").asString(), u"k");
    EXPECT_TRUE(session.lisp.getSymbol(u"t").isTruth());
    session.lisp.setSymbol(u"nil", Value::integer(1));
    EXPECT_EQ(session.run("nil"), "nil");
}

}  // namespace
