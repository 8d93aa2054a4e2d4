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
    EXPECT_TRUE(has(run.errors, "argument 1: expected a list, got 5"));
    EXPECT_EQ(run.status, 1U);
}

TEST(LispBridge, WhatAPluginThrowsIsALispErrorThatSaysWhere) {
    EXPECT_EQ(
        values("(catch-error (t_throw) (lambda (e) e)) (catch-error (t_throw5) (lambda (e) e)) (t_two)"),
        "\"program.lsp:1: (t_throw): out of wire\"\n"
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

// What a call gives that may fail, with the error's text in place of a value.
std::string tried(const std::string& call) { return "(catch-error " + call + " (lambda (e) e)) "; }

TEST(LispBridge, AFunctionThatWasKeptBeyondItsPluginIsAnError) {
    EXPECT_EQ(values("(progn (setq kept t_two) 1) (host_unload_plugin) " + tried("(kept)")),
              "1\nT\n\"program.lsp:1: (kept): no plug-in defines t_two any more\"\n");
}

// Each tells its own messages: the first one has also seen a document open and close.
TEST(LispBridge, OfTwoPluginsWithTheSameNamesTheNewestIsCalledWhileItIsThere) {
    const TempFolder folder;
    std::filesystem::copy(buildFolder() + L"/tests/testplugin.pgx", folder.file("second.pgx"));
    const std::string load = "(host_load_plugin \"" + folder.path.generic_string() + "/second.pgx\") ";
    EXPECT_EQ(
        values("(host_open_document) (host_close_document) " + load +
               "(t_messages) (host_unload_plugin) (t_messages) " + load +
               "(host_unload_plugin \"TestPlugin.pgx\") (t_messages) (t_unbound) " + tried(load) +
               "(host_unload_plugin) (type t_messages) " + tried("(host_unload_plugin \"second.pgx\")")),
        "2\n1\nT\n\"13\"\nT\n\"1334\"\nT\nT\n\"13\"\n\"by message\"\n"
        "\"program.lsp:1: (host_load_plugin): second.pgx is loaded already\"\nT\nnil\n"
        "\"program.lsp:1: (host_unload_plugin): second.pgx isn't loaded\"\n");
}

TEST(LispBridge, AFileOfTextIsUtf8WithAMarkWhereItIsAskedFor) {
    const TempFolder folder;
    EXPECT_EQ(values("(progn (setq file \"" + folder.path.generic_string() +
                     "/written.txt\") 0) (t_write file \"äb\" T nil) (file-size file) "
                     "(t_write file \"äb\" T T) (file-size file) (t_write file \"c\" nil nil)"),
              "0\n0\n3\n0\n6\n80\n");
}

TEST(LispBridge, AListThatIsNestedTooDeeplyIsRefusedInSoManyWords) {
    EXPECT_EQ(values("(repeat 1000 (setq deep (list deep))) " + tried("(= 1 (length (t_echo deep)))") +
                     tried("(t_echo (list deep))"))
                  .substr(2003),
              "\nT\n\"program.lsp:1: (t_echo): a list is nested deeper than 1,000\"\n");
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
