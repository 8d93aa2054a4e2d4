#include "host/runner/DialogFindings.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using Findings = std::vector<std::wstring>;

DialogTemplateControl control(int id, const wchar_t* className = L"Edit", const wchar_t* text = L"",
                              uint32_t style = 0) {
    return {.id = id, .style = style, .width = 40, .height = 14, .className = className, .text = text};
}

bool alwaysFits(const std::wstring&, const TextRoom&) { return true; }
bool isNoSuch(const std::wstring& className) { return className == L"NoSuchClass"; }

Findings findings(const wchar_t* keys, std::vector<DialogTemplateControl> controls,
                  const FitsRoom& fits = alwaysFits) {
    DialogTemplate dialog;
    dialog.controls = std::move(controls);
    return findMismatches(*parseKeyList(keys), dialog,
                          {{{L"Browse", L"&Browse"}}, fits, std::not_fn(&isNoSuch)});
}

// Each of `parts` is found in the finding at its place, and there are no more findings.
void expectFindings(const Findings& found, const Findings& parts) {
    ASSERT_EQ(found.size(), parts.size()) << testing::PrintToString(found);
    for (size_t i = 0; i < parts.size(); ++i) EXPECT_NE(found[i].find(parts[i]), std::wstring::npos) << i;
}

TEST(DialogFindings, aListLongerThanTheIdsThatAreSeen) {
    std::wstring list = L"A";
    std::vector<DialogTemplateControl> controls;
    for (int id = 110; id <= 400; ++id) {
        list += L",K" + std::to_wstring(id);
        controls.push_back(control(id));
    }
    expectFindings(
        findings(list.c_str(), controls),
        {L"\"k400\" belongs to control 400, which is out of reach", L"control 400 is out of reach"});
}

TEST(DialogFindings, controlsThatNoKeyReaches) {
    expectFindings(findings(L"A,OK,X", {control(1), control(111), control(112), control(109)}),
                   {L"control 112 has no key", L"control 109 has no key"});
    // The place of OK: the key means the id 1.
    expectFindings(findings(L"A,OK,X", {control(1), control(110), control(111)}),
                   {L"control 110 stands at the place of the key \"ok\""});
}

TEST(DialogFindings, idsThatAreNeverLookedAt) {
    expectFindings(findings(L"A,X", {control(110), control(3), control(400), control(0)}),
                   {L"control 3 is out of reach", L"control 400", L"control 0"});
    expectFindings(findings(L"A,X", {control(110), control(-1), control(0xFFFF)}),
                   {L"control -1 is what every unknown key", L"control 65535 is what every unknown key"});
}

TEST(DialogFindings, oneIdForTwoControls) {
    expectFindings(findings(L"A,X", {control(110), control(110, L"Edit", L"second")}),
                   {L"control 110 is there twice, and only the first is found: give \"second\""});
}

TEST(DialogFindings, oneMnemonicForTwoControls) {
    constexpr uint32_t noPrefix = 0x80;
    expectFindings(
        findings(L"A,V,W,X,Y,Z", {control(110, L"Static", L"&Find"), control(111, L"Button", L"O&f"),
                                  control(112, L"Static", L"R&&d &first", noPrefix),
                                  control(113, L"Button", L"f&&f"), control(114, L"Edit", L"&f")}),
        {L"control 111 has the mnemonic \"f\" of control 110"});
}

TEST(DialogFindings, anIconHasItsMnemonicInItsTip) {
    expectFindings(
        findings(L"A,V,W,X", {control(110, L"Static", L"&Block"), control(111, L"Button", L"browse"),
                              control(112, L"Static", L"Browse")}),
        {L"control 111 has the mnemonic \"b\" of control 110: an icon has it in its tip"});
}

TEST(DialogFindings, controlsThatTheTabKeyMisses) {
    constexpr uint32_t shown = 0x10000000, stop = 0x10000, group = 0x20000, radio = 9, groupBox = 7,
                       slide = 0x20000;
    DialogTemplateControl picture = control(118, L"Button", L"", shown | group);
    picture.exStyle = slide;
    expectFindings(
        findings(
            L"A,R1,R2,E,R3,L,H,BOX,T,P,B,C",
            {control(110, L"Button", L"", shown | group | stop | radio),
             control(111, L"Button", L"", shown | radio), control(112, L"Edit", L"", shown),
             control(113, L"Button", L"", shown | group | radio),
             control(114, L"SYSLISTVIEW32", L"", shown | stop), control(115, L"Edit"),
             control(116, L"Button", L"", shown | groupBox), control(117, L"Static", L"", shown), picture,
             control(119, L"Button", L"", shown | group | stop), control(120, L"Button", L"", shown)}),
        {L"control 112 can't be reached by the Tab key", L"control 113 can't be reached",
         L"control 120 can't be reached"});
}

TEST(DialogFindings, framesThatTheirTabControlCovers) {
    constexpr uint32_t frameStyle = 0x54000007;
    const auto at = [](DialogTemplateControl moved, int x) {
        moved.x = x;
        return moved;
    };
    expectFindings(
        findings(L"A,A1,TAB,A3,A4,A5",
                 {control(110, L"Button", L"", frameStyle), control(111, L"SYSTABCONTROL32"),
                  at(control(112, L"Button", L"", frameStyle), 39), control(113, L"Button", L"", 0x50000007),
                  at(control(114, L"Button", L"", frameStyle), 40)}),
        {L"control 112 is a frame that the tab control 111 covers: give it a lower id"});
}

TEST(DialogFindings, namesKeysAndClassesThatDoNotWork) {
    const std::vector<DialogTemplateControl> ok{control(1)};
    expectFindings(findings(L"A/B,OK", ok), {L"no file can have that name"});
    expectFindings(findings((std::wstring(241, L'n') + L",OK").c_str(), ok), {L"no file can have that name"});
    expectFindings(findings(L"A B,OK", ok), {L"no Lisp symbol can hold that name"});
    expectFindings(findings(L"A,OK,B C,D),it's,E/F",
                            {control(1), control(111), control(112), control(113), control(114)}),
                   {L"key \"b c\" fits in no Lisp symbol", L"key \"d)\"", L"key \"it's\""});
    expectFindings(findings(L"A,X", {control(110, L"NoSuchClass")}),
                   {L"control 110 is of the window class \"NoSuchClass\", which nobody registers"});
}

TEST(DialogFindings, textIsMeasuredWhereItIsShownWhole) {
    std::vector<std::wstring> measured;
    const auto tooLong = [&](const std::wstring& text, const TextRoom& room) {
        measured.push_back(text + (room.wraps ? L" wraps " : L" ") + std::to_wstring(room.width));
        return text != L"Long";
    };
    constexpr uint32_t checkBox = 3, icon = 3, oneLine = 0xC, ownDrawn = 0xB;
    expectFindings(
        findings(L"A,A1,A2,A3,A4,A5,A6,A7,A8",
                 {control(110, L"Static", L"Long"), control(111, L"Static", L"Line", oneLine),
                  control(112, L"Static", L"file", icon), control(113, L"Button", L"Check", checkBox),
                  control(114, L"Button", L"BROWSE"), control(115, L"Button", L"own", ownDrawn),
                  control(116, L"Edit", L"scrolls"), control(117, L"Button", L"Push")},
                 tooLong),
        {L"control 110 cuts off its text \"Long\""});
    EXPECT_EQ(measured,
              (std::vector<std::wstring>{L"Long wraps 40", L"Line 40", L"Check 28", L"Ag 40", L"Push 36"}));
}

}  // namespace
