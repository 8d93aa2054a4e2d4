// Sessions work a plain dialog with a control of each kind as a person would.
#include <gtest/gtest.h>

#include "tests/ui/host/HostProcess.h"

namespace {

constexpr char HELPERS[] = R"(
(defun look (tile what) (cdr (assoc what (ui_look tile))))
(defun show (value) (prin1 value) (terpri))
)";

HostRun play(const std::string& forms) {
    return runProgram(HELPERS + ("(ui_session \"EVERYTHING\" '(" + forms + ")) (setq answer (t_dialog))"));
}

// What a session shows that ends with OK and makes no error.
std::string shown(const std::string& forms) {
    const HostRun run = play(forms + "(ui_click \"ok\")");
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.status, 0U);
    return run.output;
}

// Those of lists are picked in the sessions of the dialogs that have them.
TEST(Session, BranchesOfATreeArePickedByTextByHandleAndByPath) {
    EXPECT_EQ(shown(R"((show (ui_items "tree"))
                       (ui_pick "tree" "tin") (setq tin (look "tree" "selected"))
                       (show (ui_items "tree"))
                       (ui_pick "tree" "gases") (show (equal tin (look "tree" "selected")))
                       (ui_pick "tree" (car tin)) (show (equal tin (look "tree" "selected")))
                       (ui_pick "tree" '("metals" "copper")) (show (look "tree" "path")))"),
              "(\"metals\" \"gases\")\n(\"metals\" \"\\tcopper\" \"\\ttin\" \"gases\")\nnil\nT\n"
              "(\"metals\" \"copper\")\n");
}

TEST(Session, ATreesButtonsBoxesAndKeysAreWorked) {
    EXPECT_EQ(shown(R"((ui_expand "tree" "metals") (show (look "tree" "expanded"))
                       (show (look "tree" "path"))
                       (ui_check "tree" '("metals" "tin")) (show (look "tree" "checks"))
                       (ui_pick "tree" "copper") (show (look "tree" "images"))
                       (ui_key "LEFT" "tree") (ui_key "LEFT") (show (ui_items "tree"))
                       (ui_dblclick "tree" "metals") (show (look "tree" "expanded"))
                       (ui_expand "tree" "metals") (ui_key "g") (show (look "tree" "path")))"),
              "((\"metals\"))\n(\"metals\")\n((\"metals\" \"tin\"))\n(0 11 2 3)\n(\"metals\" \"gases\")\n"
              "((\"metals\"))\n(\"gases\")\n");
}

TEST(Session, WithoutAFocusAKeyGoesNowhere) {
    EXPECT_EQ(shown(R"((ui_click "check") (t_unfocus) (ui_key "SPACE") (ui_key "ENTER") (ui_char "x")
                       (show (look "check" "checked")))"),
              "T\n");
}

TEST(Session, WaitingFormsAreTriedAgain) {
    EXPECT_EQ(
        shown("(setq n 0) (ui_wait (> (setq n (1+ n)) 3)) (show n) (t_say \"meanwhile\") (show (ui_alerts)) "
              "(show (ui_dialogs))"),
        "4\n[alert] meanwhile\n(\"meanwhile\")\n(\"Everything\")\n");
}

// Every refusal names the step, the tile and the dialog, and the session goes on.
TEST(Session, WhatAPersonCannotDoIsRefused) {
    const HostRun run =
        play(R"((ui_click "disabled") (ui_click "hidden") (ui_click "nobody") (ui_pick "edit" 1)
                                (ui_pick "list" 99) (ui_key "QQ") (ui_header "edit" 1) (ui_drag "MIDDLE" 1 1)
                                (ui_drag "GRIP" 1 1)
                                (ui_expand "tree" "gases") (ui_pick "tree" '("gases" "tin")) (ui_click "ok"))");
    EXPECT_EQ(run.status, 1U);
    for (const char* why :
         {"step 1: (UI_CLICK \"disabled\")\n", "tile \"disabled\" of dialog \"Everything\": it is disabled\n",
          "tile \"hidden\" of dialog \"Everything\": it is not visible\n",
          "tile \"nobody\" of dialog \"Everything\": there is no such tile\n",
          "tile \"edit\" of dialog \"Everything\": it is no list\n",
          "tile \"list\" of dialog \"Everything\": it has no item 99\n",
          "expected the name of a key, got \"QQ\"\n",
          "tile \"tree\" of dialog \"Everything\": item \"gases\" has no button to open or close it\n",
          "tile \"tree\" of dialog \"Everything\": it has no item (\"gases\" \"tin\")\n",
          "tile \"edit\" of dialog \"Everything\": it has no header of column 1\n",
          "expected LEFT, TOP, RIGHT, BOTTOM or GRIP, got \"MIDDLE\"\n",
          "dialog \"Everything\" can't be sized there\n"})
        EXPECT_TRUE(has(run.errors, why));
}

TEST(Session, ADialogLeftOpenIsClosedAndTold) {
    const HostRun run = play("(ui_title)");
    EXPECT_EQ(run.status, 3U);
    EXPECT_EQ(run.errors, "dialog \"Everything\" is still open at the end of its session\n");

    const HostRun stubborn =
        runProgram("(ui_session \"everything\" '((ui_title))) (t_dialog T) (princ \"never\")");
    EXPECT_EQ(stubborn.status, 3U);
    EXPECT_EQ(stubborn.output, "");

    const HostRun alone = runProgram("(t_dialog) (princ \"goes on\")");
    EXPECT_EQ(alone.status, 3U);
    EXPECT_EQ(alone.output, "goes on");
    EXPECT_EQ(alone.errors, "no session for dialog \"Everything\", and nobody else to work it\n");
}

TEST(Session, FormsThatWereNeverReachedAreTold) {
    const HostRun early = play("(ui_click \"ok\") (ui_title)");
    EXPECT_EQ(early.status, 1U);
    EXPECT_EQ(early.errors, "session \"EVERYTHING\": the dialog ended before step 2: (UI_TITLE)\n");

    const HostRun never = runProgram("(ui_session \"NEVER\" '((ui_title)))");
    EXPECT_EQ(never.status, 1U);
    EXPECT_EQ(never.errors, "session \"NEVER\": its dialog was never opened\n");
}

TEST(Session, APictureShowsAlsoWhatLiesOffTheScreen) {
    const TempFolder shots;
    const HostRun run = runProgram(
        "(ui_session \"everything\" '((t_move 100 100) (ui_shot \"on.png\") (t_move -100 900) (ui_shot "
        "\"off.png\")"
        "(princ (cdr (assoc \"rect\" (ui_look)))) (ui_close))) (t_dialog)",
        {L"--shots", shots.path.wstring()});
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output.find("(-100 900 "), 0U) << run.output;
    EXPECT_FALSE(bytesOf(shots.file("on.png")).empty());
    EXPECT_TRUE(bytesOf(shots.file("on.png")) == bytesOf(shots.file("off.png")));
}

}  // namespace
