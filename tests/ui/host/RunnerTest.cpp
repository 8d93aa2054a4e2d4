// The command line of wexhost: what it prints where, and its exit status.
#include <gtest/gtest.h>

#include "tests/ui/host/HostProcess.h"

TEST(Runner, StepsRunInOrderAndStopAtTheFirstError) {
    const HostRun run = runHost({L"--headless", L"-e", L"(setq x 1)", L"-e", L"(princ (1+ x))", L"-e",
                                 L"(car 5)", L"-e", L"(princ \"never\")"});
    EXPECT_EQ(run.output, "2\n");
    EXPECT_EQ(run.errors, "-e:1: (car): argument 1: expected a list, got 5\n");
    EXPECT_EQ(run.status, 1U);
}

TEST(Runner, WrongUsageAndAMissingFileAreTold) {
    EXPECT_EQ(runHost({L"--no-such"}).status, 2U);
    EXPECT_EQ(runHost({L"--headless", L"no-such.lsp"}).status, 1U);
    EXPECT_EQ(evaluate(L"(exit 7)").status, 7U);
}

TEST(Runner, ThePromptGoesOnOverLinesAndErrors) {
    const HostRun run =
        runHost({L"--headless", L"-i"},
                "(+ 1\r\n 2)\n(car 5)\n(princ)\n(defun c:greet () \"hello\")\ngreet\nt\n\"gr\xC3\xBCn\"");
    EXPECT_EQ(run.output, "3\n\nC:GREET\n\"hello\"\nT\n\"gr\xC3\xBCn\"\n");
    EXPECT_TRUE(has(run.errors, "(car): argument 1"));
    EXPECT_EQ(run.status, 1U);

    const HostRun open = runHost({L"--headless", L"-i"}, "(princ 1)\n(princ\n (princ 2)\n");
    EXPECT_EQ(open.output, "11\n");
    EXPECT_EQ(open.errors, "prompt:1: the list that opens here is not closed\n");
    EXPECT_EQ(open.status, 1U);
    EXPECT_EQ(runHost({L"--headless", L"-i"}, "(princ 1)\n").status, 0U);
}

// As a person types them, into the command line, whose control id is 104.
TEST(Runner, TheMainFrameRemembersItsLines) {
    const TempFolder folder;
    const auto run = [&](const std::wstring& steps) {
        return runHost({L"--headless", L"--timeout", L"20", L"--settings", folder.file("settings"), L"-e",
                        L"(progn (ui_session nil '(" + steps + L" (ui_close))) (host_main_frame))"});
    };
    std::wstring steps = L"(setq seen nil)";
    for (const wchar_t* text : {L"(setq x 5)", L"(+ x", L"2)"})
        steps += std::wstring(L"(ui_type 104 \"") + text + L"\") (ui_key \"ENTER\" 104)";
    steps += L"(ui_type 104 \"typed\")";
    for (const wchar_t* key : {L"UP", L"UP", L"UP", L"DOWN", L"DOWN", L"DOWN", L"ESC"})
        steps += std::wstring(L"(ui_key \"") + key + L"\" 104) (setq seen (cons (ui_text 104) seen))";
    const HostRun first = run(steps + L"(prin1 (reverse seen))");
    EXPECT_EQ(first.output,
              "Command: (setq x 5)\n5\nCommand: (+ x\nmore: 2)\n7\n"
              "(\"2)\" \"(+ x\" \"(setq x 5)\" \"(+ x\" \"2)\" \"typed\" \"\")");
    EXPECT_EQ(first.errors, "");
    EXPECT_EQ(run(L"(ui_key \"UP\" 104) (prin1 (ui_text 104))").output, "\"2)\"");
}

TEST(Runner, AlertsAndMessageBoxesAreAnsweredAndRecorded) {
    const HostRun run = evaluate(
        L"(progn (prin1 (list (t_say \"first\") (t_ask \"second\"))) (prin1 (ui_alerts)) "
        L"(prin1 (ui_alerts)) (t_print))");
    // A question that has no OK is answered with Yes.
    EXPECT_EQ(run.output,
              "[alert] first\n[alert] second\n(1 6)(\"first\" \"second\")nilgr\xC3\xBCn has 3 of x\n");
}

TEST(Runner, TimeRunsOutInALoopOfLisp) {
    for (const wchar_t* never : {L"inf", L"1e10"})
        EXPECT_EQ(runHost({L"--headless", L"--timeout", never, L"-e", L"(repeat 100000 1)"}).status, 0U);
    const HostRun run = runHost({L"--headless", L"--timeout", L"0.5", L"-e", L"(while T (setq x 1))"});
    EXPECT_EQ(run.status, 4U);
    EXPECT_EQ(run.errors.find("time ran out\n"), 0U) << run.errors;
}

TEST(Runner, TimeRunsOutInADialogThatWaits) {
    const HostRun run =
        runHost({L"--headless", L"--timeout", L"1", L"-e",
                 L"(progn (ui_session \"everything\" '((ui_title) (ui_wait nil))) (t_dialog))"});
    EXPECT_EQ(run.status, 4U);
    EXPECT_EQ(run.errors.find("time ran out\n  dialog \"Everything\" is open\n"
                              "  the last step was session \"everything\", step 2: (UI_WAIT nil)\n"),
              0U)
        << run.errors;
}

TEST(Runner, ACrashIsToldBehindWhatWasPrinted) {
    const HostRun run = runHost({L"--headless", L"-e", LR"((princ "before") (t_crash))"});
    EXPECT_EQ(run.status, 5U);
    EXPECT_EQ(run.output, "before\n");
    EXPECT_EQ(run.errors.find("wexhost crashed: exception 0xc0000005 in testplugin.pgx+0x"), 0U)
        << run.errors;

    const HostRun smashed = runHost({L"--headless", L"-e", L"(t_smash)"});
    EXPECT_EQ(smashed.status, 5U);
    EXPECT_EQ(smashed.errors.find("wexhost crashed: exception 0xc0000409 in testplugin.pgx+0x"), 0U)
        << smashed.errors;

    const HostRun inAction =
        runHost({L"--headless", L"-e", LR"((ui_session "everything" '((t_crash))) (t_dialog))"});
    EXPECT_EQ(inAction.status, 5U);
    EXPECT_TRUE(has(inAction.errors, "the last step was session \"everything\", step 1: (T_CRASH)"));
}

TEST(Runner, AFileDialogThatRefusesItsAnswerIsToldAndLeft) {
    const HostRun run = runHost(
        {L"--headless", L"--timeout", L"60", L"-e",
         LR"((progn (ui_session nil '((ui_answer "OK" "no such.lsp") (ui_key "CTRL+O" 103) (princ "left"))) (host_main_frame)))"});
    EXPECT_EQ(run.status, 1U);
    EXPECT_EQ(run.output, "[alert] Open Program\n[alert] File does not exist\nleft");
    EXPECT_EQ(run.errors,
              "session of the main frame, step 2: (UI_KEY \"CTRL+O\" 103)\n"
              "  dialog \"Open Program\" did not take the answer OK with the name \"no such.lsp\"\n");
}
