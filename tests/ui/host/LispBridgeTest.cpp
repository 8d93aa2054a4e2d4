// Lisp calls functions of a plug-in, and the plug-in calls Lisp.
#include <gtest/gtest.h>

#include "tests/ui/host/HostProcess.h"

namespace {

// The values of the forms, each on a line of its own.
std::string values(const std::string& forms) {
    const HostRun run = runProgram("(foreach form '(" + forms + ") (prin1 (eval form)) (terpri))");
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.status, 0U);
    return run.output;
}

TEST(LispBridge, EveryKindOfValueCrossesBothWays) {
    EXPECT_EQ(values(R"((t_echo 1 -32768 32767 32768 -2147483648 2.5 "grün" T nil)
                        (t_echo '(1.0 2.0) '(1 2) '(1.0 2) '(1.0 2.0 3.0) '() '("a" (2 (3)) (4 . 5)))
                        (t_value '(1 (2 3)))
                        (t_value '(1.0 2.0)))"),
              "(1 -32768 32767 32768 -2147483648 2.5 \"grün\" T nil)\n"
              "((1.0 2.0) (1 2) (1.0 2) (1.0 2.0 3.0) nil (\"a\" (2 (3)) (4 5)))\n"
              "(1 (2 3))\n"
              "(1.0 2.0)\n");
}

TEST(LispBridge, TheLastResultHoldsAndNoneIsNil) {
    EXPECT_EQ(values("(t_void) (t_noresult) (t_two) (t_unbound) (list (t_void))"),
              "nil\nnil\n\"the last one\"\n\"by message\"\n(nil)\n");
}

// A call from within a call has arguments and a result of its own, and the outer one goes on as before.
TEST(LispBridge, CallsNest) {
    EXPECT_EQ(values(R"((defun inner (x) (t_two) (car (t_echo x)))
                        (t_invoke "INNER" "a")
                        (t_invoke "t_invoke" "strcat" "a" "b")
                        (t_invoke "no-such-function")
                        (t_put "kept" 5) kept
                        (t_put "KEPT" 1 "x" '(2)) kept
                        (t_put "kept" '(1 2)) kept)"),
              "INNER\n"
              "(5100 8 \"a\")\n"
              "(5100 8 (5100 8 \"ab\"))\n"
              "(-5001 8)\n"
              "5100\n5\n"
              "5100\n(1 \"x\" (2))\n"
              "5100\n(1 2)\n");
}

TEST(LispBridge, AnErrorInACallbackIsReportedAndThePluginGoesOn) {
    const HostRun run = runProgram("(prin1 (t_invoke \"car\" 5))");
    EXPECT_EQ(run.output, "(-5001 8)");
    EXPECT_NE(run.errors.find("argument 1: expected a list, got 5"), std::string::npos) << run.errors;
    EXPECT_EQ(run.status, 1U);
}

TEST(LispBridge, WhatAPluginThrowsIsALispErrorThatSaysWhere) {
    EXPECT_EQ(
        values("(catch-error (t_throw) (lambda (e) e)) (catch-error (t_throw5) (lambda (e) e)) (t_two)"),
        "\"program.lsp:1: (t_throw): the plug-in's function failed: out of wire\"\n"
        "\"program.lsp:1: (t_throw5): the plug-in's function failed: an exception of an unknown kind\"\n"
        "\"the last one\"\n");
}

// A document that opens gets the functions too, and they go with the last one that has them.
TEST(LispBridge, FunctionsLiveInDocuments) {
    EXPECT_EQ(values(R"((host_open_document) (t_messages)
                        (host_close_document) (t_code)
                        (host_close_document) (type t_code)
                        (host_open_document) (t_messages)
                        (host_unload_plugin) (type t_messages))"),
              "2\n\"133\"\n1\n7\n0\nnil\n1\n\"133443\"\nT\nnil\n");
}

TEST(LispBridge, APluginStaysWhileOneOfItsFunctionsRuns) {
    EXPECT_EQ(
        values(R"((defun leave () (catch-error (host_unload_plugin) (lambda (e) e)))
                        (t_invoke "leave") (t_two))"),
        "LEAVE\n"
        "(5100 8 \"program.lsp:1: (host_unload_plugin): testplugin.pgx can't be unloaded while one of its "
        "functions runs\")\n\"the last one\"\n");
}

}  // namespace
