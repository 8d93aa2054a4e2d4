#include "host/record/Recording.h"

#include <gtest/gtest.h>

using Kind = RecordedStep::Kind;

TEST(Recording, SessionsStandInTheOrderInWhichTheirDialogsCameUp) {
    Recording recording(L"; head\n");
    const size_t outer = recording.begin(L"OUTER");
    recording.add(outer, {Kind::click, L"\"HELP\"", L"(ui_click \"HELP\")", {}});
    recording.add(recording.begin(L"INNER"), {Kind::other, {}, L"(ui_close)", {}});
    recording.add(outer, {Kind::type, L"\"A\"", L"(ui_type \"A\" " + lispString(L"a \"b\"\n\\") + L")", {}});
    EXPECT_EQ(
        recording.text(),
        L"; head\n"
        L"\n(ui_session \"OUTER\"\n  '((ui_click \"HELP\")\n    (ui_type \"A\" \"a \\\"b\\\"\\n\\\\\")))\n"
        L"\n(ui_session \"INNER\"\n  '((ui_close)))\n");
}

TEST(Recording, WhatTheNextStepDoesItselfIsLeftOut) {
    Recording recording(L"");
    const size_t session = recording.begin(L"A");
    recording.add(session, {Kind::focus, L"\"X\"", L"(focus X)", {}});
    const auto typed = recording.add(session, {Kind::type, L"\"X\"", L"", {}});
    EXPECT_EQ(recording.text(), L"\n(ui_session \"A\"\n  '((focus X)))\n") << "nothing was typed";
    recording.add(session, {Kind::type, L"\"Y\"", L"(type Y)", {}});
    EXPECT_EQ(recording.text(), L"\n(ui_session \"A\"\n  '((focus X)\n    (type Y)))\n") << "elsewhere";
    recording.at(typed).form = L"(type X)";
    recording.add(session, {Kind::open, L"\"C\"", L"(open C)", {}});
    recording.add(session, {Kind::pick, L"\"C\"", L"(pick C)", {}});
    EXPECT_EQ(recording.text(), L"\n(ui_session \"A\"\n  '((type X)\n    (type Y)\n    (pick C)))\n");
}

TEST(Recording, BoxesAreAnsweredBeforeTheStepThatBringsThemUp) {
    Recording recording(L"");
    recording.addBeforeLast(L"(answer 1)");
    const size_t session = recording.begin(L"A");
    recording.add(session, {Kind::other, {}, L"(step 1)", {}});
    recording.add(session, {Kind::other, {}, L"(step 2)", {}});
    recording.addBeforeLast(L"(answer 2)");
    EXPECT_EQ(recording.text(),
              L"\n(answer 1)\n\n(ui_session \"A\"\n  '((step 1)\n    (answer 2)\n    (step 2)))\n");
    recording.add(session, {Kind::menuKey, {}, L"(down)", {}});
    recording.add(session, {Kind::menuKey, {}, L"(down)", {}});
    recording.dropMenuKeys();
    recording.add(session, {Kind::other, {}, L"(menu)", {}});
    EXPECT_TRUE(recording.text().ends_with(L"(step 2)\n    (menu)))\n"));
}
