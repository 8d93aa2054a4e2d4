// How programs behave where it is easy to get wrong. docs/lisp.md's examples are tested too.
#include <gtest/gtest.h>

#include "tests/unit/lisp/Session.h"

namespace {

TEST(Scope, AnErrorGivesVariablesBackThroughEveryKindOfBinding) {
    Session session;
    session.run(
        "(setq p 1 l 2 x 3) (defun inner (p / l) (setq l 9) (foreach x '(4) (car p)))"
        "(defun outer (p / l) (mapcar 'inner (list p)))");
    EXPECT_EQ(session.run("(outer 5)"), "error: example:1: (car): argument 1: expected a list, got 5");
    EXPECT_EQ(session.run("(catch-error (outer 5)) (list p l x)"), "(1 2 3)");
}

TEST(Scope, AParameterNamedTwiceStillGivesTheOuterValueBack) {
    Session session;
    EXPECT_EQ(session.run("(setq a 0) (defun f (a a) a) (list (f 1 2) a)"), "(2 0)");
}

TEST(Scope, LocalsHideFunctionsToo) {
    Session session;
    EXPECT_EQ(session.run("(defun f (car) (car '(1 2))) (list (f cdr) (car '(1 2)))"), "((2) 1)");
}

TEST(Functions, MayRedefineThemselvesWhileTheyRun) {
    Session session;
    session.lisp.setCollectAlways(true);
    EXPECT_EQ(session.run("(defun f (x) (defun f (x) (list 'new x)) (setq y (list x \"kept\")) (list 'old y))"
                          "(list (f 1) (f 2))"),
              "((OLD (1 \"kept\")) (NEW 2))");
    EXPECT_EQ(session.run("(defun g (x) (setq g nil) (list x)) (mapcar 'g '(1 2))"), "((1) (2))");
    EXPECT_EQ(
        session.run("(defun less (a b) (defun less (a b) (> a b)) (< a b)) (length (sort '(3 1 2) 'less))"),
        "3");
}

TEST(Functions, ArithmeticFollowsARedefinition) {
    Session session;
    EXPECT_EQ(session.run("(defun sum (a b) (+ a b)) (setq before (sum 1 2)) (defun + (a b) (list a b))"
                          "(list before (sum 1 2))"),
              "(3 (1 2))");
    EXPECT_EQ(session.run("(setq + nil) (sum 1 2)"), "error: example:1: (+): no such function");
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

TEST(Functions, SpecialFormsAndConstantsAreNotRedefined) {
    Session session;
    EXPECT_EQ(session.run("(setq if 1)"),
              "error: example:1: (setq): if can't be used as a variable or function name");
    EXPECT_EQ(session.run("(setq T 1)"), "error: example:1: (setq): expected a variable, got T");
    EXPECT_EQ(session.run("(defun f (nil) 1)"), "error: example:1: (defun): expected a variable, got nil");
}

TEST(Functions, OneMalformedFormDoesNotKeepTheOthersFromLoading) {
    Session session;
    EXPECT_EQ(session.run("(defun broken () (setq a)) (defun sound () 1) (sound)"), "1");
    EXPECT_EQ(session.run("(broken)"), "error: example:1: (setq): the value is missing");
}

TEST(Numbers, LeaveTheIntegersWhereTheResultNeedsIt) {
    Session session;
    EXPECT_EQ(session.run("(list (+ 2147483647 1) (- -2147483648 1) (* 65536 65536) (/ -2147483648 -1)"
                          "(rem -2147483648 -1) (abs -2147483648) (- -2147483648) (fix 1e10) (expt 2 31))"),
              "(2147483648.0 -2147483649.0 4294967296.0 2147483648.0 0 2147483648.0 2147483648.0 1e+10 "
              "2147483648.0)");
    EXPECT_EQ(session.run("(apply '+ (list 2147483647 1 -1))"), "2147483647.0");
    EXPECT_EQ(session.run("(list 2147483647 2147483648 -2147483648 +5 .5 5. 1e3 -)"),
              "(2147483647 2147483648.0 -2147483648 5 0.5 5.0 1000.0 #<native ->)");
    EXPECT_EQ(session.run("(setq zero 0.0) (/ 1 zero)"), "error: example:1: (/): division by zero");
    EXPECT_EQ(session.run("(list (lsh 1 31) (lsh 1 32) (lsh -1 -1) (lsh -1 -40))"),
              "(-2147483648 0 2147483647 0)");
    EXPECT_EQ(session.run("(list 1e400 -1e400 1e-400 (sqrt 2))"), "(1e999 -1e999 0.0 1.4142135623730951)");
}

TEST(Numbers, AreReadFromTheStartOfTexts) {
    Session session;
    EXPECT_EQ(session.run("(list (atoi \"x\") (atoi \"-7-\") (atoi \"99999999999\") (atof \"1e\") (atof "
                          "\".5.\") (atof \"\"))"),
              "(0 -7 2147483647 1.0 0.5 0.0)");
}

TEST(Lists, PairsAndSharedTailsStayWhole) {
    Session session;
    EXPECT_EQ(session.run("(setq a '(1 2)) (setq b (append '(0) a)) (list a b (cons 0 a) (append a 3))"),
              "error: example:1: (append): argument 2: expected a list, got 3");
    EXPECT_EQ(session.run("(list b a (subst 9 2 '(2 . 3)) (cdr '(a . b)))"), "((0 1 2) (1 2) (9 . 3) B)");
    EXPECT_EQ(session.run("(length '(1 . 2))"),
              "error: example:1: (length): argument 1: expected a list that ends in nil, got (1 . 2)");
    EXPECT_EQ(session.run("(list (cadddr '(1 2 3 4)) (caadar '((1 (2 3)))))"), "(4 2)");
}

TEST(Lists, SortIsStableAndSurvivesAnOrderThatContradictsItself) {
    Session session;
    EXPECT_EQ(session.run("(sort '((2 a) (1 b) (2 c) (1 d)) (lambda (x y) (< (car x) (car y))))"),
              "((1 B) (1 D) (2 A) (2 C))");
    EXPECT_EQ(
        session.run("(setq n 0) (length (sort (range 1000) (lambda (a b) (= 0 (rem (setq n (1+ n)) 3)))))"),
        "1000");
    EXPECT_EQ(session.run("(catch-error (sort '(1 2) (lambda (a b) (error \"stop\"))))"),
              "\"example:1: (error): stop\"");
}

TEST(Strings, CountCharactersBeyondTheFirstPlaneAsPairs) {
    Session session;
    EXPECT_EQ(session.run(
                  "(list (strlen \"\xF0\x9F\x98\x80\") (ascii \"\xF0\x9F\x98\x80\") (strlen (chr 128512)))"),
              "(2 128512 2)");
    EXPECT_EQ(session.run("(strcase \"stra\xC3\x9F"
                          "e \xC5\xBE \xCF\x89\xCF\x82 \xD1\x8F \xC3\xBF\")"),
              "\"STRA\xC3\x9F"
              "E \xC5\xBD \xCE\xA9\xCF\x82 \xD0\xAF \xC5\xB8\"");
    EXPECT_EQ(session.run("(strcase (strcase \"\xC5\xBE\xC4\x91\xC5\x82\xC5\xB7 \xD1\x91\xC3\xBF\") T)"),
              "\"\xC5\xBE\xC4\x91\xC5\x82\xC5\xB7 \xD1\x91\xC3\xBF\"");
}

TEST(Strings, AnEmptyPartIsFoundButNotReplaced) {
    Session session;
    EXPECT_EQ(
        session.run("(list (string-search \"ab\" \"\" 1) (string-search \"ab\" \"\" 3)"
                    "(string-replace \"ab\" \"\" \"x\") (catch-error (string-split \"ab\" \"\") strlen))"),
        "(1 nil \"ab\" 84)");
}

TEST(Strings, MatchPatterns) {
    struct Case {
        const char* text;
        const char* pattern;
        bool matches;
    };
    for (const Case& c : {Case{"", "", true},           Case{"", "*", true},         Case{"abc", "a*c", true},
                          Case{"abcbd", "a*b?", true},  Case{"abc", "~a*", false},   Case{"xbc", "~a*", true},
                          Case{"a-1", "@.#", true},     Case{"b", "[a-c]", true},    Case{"-", "[a-]", true},
                          Case{"d", "[~a-c]", true},    Case{"a,b", "a`,b", true},   Case{"a*", "a`*", true},
                          Case{"ab", "a`*", false},     Case{"b", "a,b,c", true},    Case{"", "a,", true},
                          Case{"[", "[", true},         Case{"`", "`", true},        Case{"a", "a[", false},
                          Case{"abcd", "*[,]*", false}, Case{"ab,cd", "*[,]*", true}}) {
        Session session;
        std::string form = std::string("(wcmatch \"") + c.text + "\" \"" + c.pattern + "\")";
        EXPECT_EQ(session.run(form), c.matches ? "T" : "nil") << form;
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

}  // namespace
