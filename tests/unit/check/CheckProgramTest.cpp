#include "host/check/CheckProgram.h"

#include <gtest/gtest.h>

#include "host/lisp/Text.h"
#include "tests/unit/check/TestKnowledge.h"

namespace {

// The warnings, one in a line, as "line:column text".
std::string warnings(std::u16string_view text, check::FindSource find = {}) {
    const check::CheckedProgram checked({{u"p", std::u16string(text)}}, testKnowledge(), std::move(find));
    std::string told;
    for (const check::Finding& finding : checked.findings())
        if (!finding.isNote) told += lisp::toUtf8(finding.message()).substr(2) + "\n";
    for (size_t at; (at = told.find(": warning:")) != told.npos;) told.erase(at, 10);
    return told;
}

TEST(CheckedProgram, WhatIsNotClosedIsToldWhereItOpens) {
    EXPECT_EQ(warnings(u"(defun f ()\n  (if 1\n    (princ 2)\n  (princ 3))\n\n(defun g () (f))\n"),
              "2:3 the list that opens here is not closed\n");
    EXPECT_EQ(warnings(u"(defun f ()\n  (princ 3)\n\n(defun g ()\n  (f)))\n"),
              "1:1 the list that opens here is not closed\n"
              "5:7 a closing parenthesis without an opening one\n");
    EXPECT_EQ(warnings(u"(defun f ()\n  (princ 3)))\n  (princ 4))\n(f)\n"),
              "2:12 a closing parenthesis too many: what follows is indented as if the list went on\n");
    EXPECT_EQ(warnings(u"(defun f ()\n  (princ \"a)\n  (princ \"b\"))\n(f 1)\n"),
              "2:10 the string that opens here is not closed\n"
              "4:2 f takes 0 arguments, got 1\n");
    EXPECT_EQ(warnings(u"(princ 1) ;| a\n(princ 2)\n"), "1:11 the comment that opens here is not closed\n");
    EXPECT_EQ(warnings(u"(princ \"a\n(b) ; no comment\n\")\n;|\n(c |;\n(princ 2)\n"), "");
}

TEST(CheckedProgram, FunctionsAndTheirArguments) {
    EXPECT_EQ(warnings(u"(prinz 1)"), "1:2 there is no function prinz; did you mean prin1?\n");
    EXPECT_EQ(warnings(u"(defun f (a / b) (setq b a) (b 1 2)) (f)"), "1:39 f takes 1 argument, got 0\n");
    EXPECT_EQ(warnings(u"(mapcar '(lambda (x) (strlin x)) '(1)) (mapcar 'strlin nil)"),
              "1:23 there is no function strlin; did you mean strlen?\n"
              "1:49 there is no function strlin; did you mean strlen?\n");
    EXPECT_EQ(warnings(u"(cond (= 1 2) (T 3))"),
              "1:7 a clause of cond begins with its condition: ((function …) …)\n");
    EXPECT_EQ(warnings(u"(if 1 2 3 4)"),
              "1:1 if takes at most 3 parts: a condition and what to do in each case (see progn)\n");
    EXPECT_EQ(warnings(u"(setq counter 1) (princ conter)"),
              "1:25 nothing sets the variable conter; did you mean counter?\n");
    EXPECT_EQ(warnings(u"(prinz 1)  ; check: off\n; check: off\n(prinz)\n; check: on\n(princ 1 2 3)\n"),
              "5:2 princ takes at most 2 arguments, got 3\n");
}

TEST(CheckedProgram, TilesOfTheCurrentDialog) {
    EXPECT_EQ(warnings(u"(wex_new_dialog \"FORN\")"),
              "1:17 there is no dialog \"FORN\"; did you mean \"FORM\"?\n");
    EXPECT_EQ(
        warnings(u"(wex_new_dialog \"form\") (wex_set_tile \"main_title\" \"\") (wex_set_tile \"NAMES\" \"\")"
                 u"(wex_start_dialog) (wex_set_tile \"NAMES\" \"\")"),
        "1:70 FORM has no tile \"NAMES\"; did you mean \"NAME\"?\n");
    // A nested dialog gives way to the outer one again.
    EXPECT_EQ(
        warnings(u"(defun ask () (wex_new_dialog \"ASK\") (wex_set_tile \"KEEP\" \"\") (wex_start_dialog))\n"
                 u"(wex_new_dialog \"FORM\") (ask) (wex_get_tile \"TEXT\")\n"),
        "1:52 ASK has no tile \"KEEP\"\n"
        "2:45 FORM has no tile \"TEXT\"\n");
    EXPECT_EQ(warnings(u"(if (not (wex_new_dialog \"FORM\")) (exit-now)) (wex_tree_getcursel \"PARTS\")"
                       u"(defun exit-now ())"),
              "1:67 wex_tree_getcursel works on a tree, and \"PARTS\" of FORM is a list control\n");
    EXPECT_EQ(warnings(u"(wex_new_dialog \"FORM\") (foreach key '(\"NAME\" \"KEPP\") (wex_mode_tile key 9))"),
              "1:47 FORM has no tile \"KEPP\"; did you mean \"KEEP\"?\n"
              "1:74 there is no mode 9: the modes are 0, 1, 2, 3, 5, 6 and -1\n");
    EXPECT_EQ(warnings(u"(wex_new_dialog \"ASK\") (wex_get_tile \"TEXT\") (wex_action_tile \"TEXT\" \"(f)\") "
                       u"(defun f ())"),
              "1:63 wex_action_tile works on a tile that a person works, and \"TEXT\" of ASK is a label\n");
    // Who calls it isn't known, or which dialog is meant.
    EXPECT_EQ(warnings(u"(defun c:go () (wex_set_tile \"ANY\" \"\")) (wex_new_dialog (strcat \"FO\" \"RM\"))"
                       u"(wex_set_tile \"ANY\" \"\")"),
              "");
}

TEST(CheckedProgram, FunctionsAreFollowedToTheirCalls) {
    EXPECT_EQ(
        warnings(u"(defun fill (tile) (wex_start_list tile)) (defun both () (wex_get_tile \"KEEP\"))\n"
                 u"(wex_new_dialog \"FORM\") (both) (fill \"NAME\") (fill \"PARTZ\") (wex_start_dialog)\n"),
        "2:38 fill works on a list box, drop-down list, list control or grid, and \"NAME\" of FORM is an "
        "edit "
        "box\n"
        "2:52 FORM has no tile \"PARTZ\"; did you mean \"PARTS\"?\n");
    EXPECT_EQ(
        warnings(
            u"(defun open (name) (wex_new_dialog name) (wex_set_tile \"TEXT\" \"\") (wex_set_tile \"X\" \"\")"
            u"(wex_start_dialog))\n(open \"FORM\") (open \"ASK\")"),
        "1:81 none of the dialogs that it may be called for has a tile \"X\"\n");
}

TEST(CheckedProgram, ActionsAreCode) {
    EXPECT_EQ(
        warnings(u"(wex_new_dialog \"FORM\")\n(wex_action_tile \"OK\" \"(wex_get_tile \\\"NAM\\\") (take\")\n"
                 u"(defun take () (wex_get_tile \"NAMEE\"))"),
        "2:38 FORM has no tile \"NAM\"; did you mean \"NAME\"?\n"
        "2:47 the list that opens here is not closed\n"
        "3:30 FORM has no tile \"NAMEE\"; did you mean \"NAME\"?\n");
    EXPECT_EQ(warnings(u"(wex_new_dialog \"FORM\") (wex_action_tile \"OK\" \"(princ \"é\")\")"),
              "1:26 wex_action_tile takes 2 arguments, got 4: (wex_action_tile tile text)\n"
              "1:48 the list that opens here is not closed\n");
}

TEST(CheckedProgram, SessionsAndFiles) {
    EXPECT_EQ(
        warnings(u"(wex_new_dialog \"FORM\") (ui_session \"ASK\" '((ui_click \"TEXT\") (ui_click \"NO\")))"),
        "1:37 the program never opens the dialog \"ASK\" of this session\n"
        "1:73 ASK has no tile \"NO\"\n");
    const auto find = [](std::u16string_view name) {
        return name == u"help" ? std::optional(check::Source{u"help.lsp", u"(defun help (a) a)"})
                               : std::nullopt;
    };
    EXPECT_EQ(warnings(u"(load \"help\") (help) (halp 1)", find),
              "1:16 help takes 1 argument, got 0\n"
              "1:23 there is no function halp; did you mean help?\n");
    EXPECT_EQ(warnings(u"(load \"other\") (halp 1)", find), "");
}

TEST(CheckedProgram, IdleTilesAreNoted) {
    const check::CheckedProgram checked(
        {{u"p", u"(wex_new_dialog \"FORM\") (wex_set_tile \"NAME\" \"\") (wex_get_tile \"KEEP\")"}},
        testKnowledge(), {});
    ASSERT_EQ(checked.findings().size(), 1U);
    EXPECT_EQ(checked.findings()[0].message(),
              u"p:1:17: note: no action and no reading touches these tiles of FORM: NAME, PARTS");
}

}  // namespace
