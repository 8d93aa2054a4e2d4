#include "host/frame/FrameSettings.h"

#include <gtest/gtest.h>

#include "host/frame/NameGroups.h"

constexpr FrameBox SCREEN = {0, 0, 1280, 1000};

TEST(FrameSettings, WhatIsWrittenIsReadAgain) {
    FrameSettings settings;
    settings.place = {{-5, 10, 900, 600}, 144, true};
    for (const wchar_t* line : {L"(princ 1)", L"(princ 1)", L"", L"(princ \"gr\x00FC\x00DF\")"})
        settings.addLine(line);
    for (const wchar_t* path : {L"C:\\a b.lsp", L"C:\\b.lsp", L"C:\\a b.lsp"}) settings.addProgram(path);
    const FrameSettings read = parseFrameSettings(frameSettingsText(settings));
    ASSERT_TRUE(read.place);
    EXPECT_EQ(read.place->box, settings.place->box);
    EXPECT_EQ(read.place->dpi, 144);
    EXPECT_TRUE(read.place->maximized);
    EXPECT_EQ(read.history, (std::vector<std::wstring>{L"(princ 1)", L"(princ \"gr\x00FC\x00DF\")"}));
    EXPECT_EQ(read.programs, (std::vector<std::wstring>{L"C:\\b.lsp", L"C:\\a b.lsp"}));
}

TEST(FrameSettings, WhatCantBeUnderstoodIsPassedOver) {
    for (const char* text :
         {"place 0 0 0 600 96", "place 0 0 900 600 0", "place 0 0 900", "place 0 0 9e9 600 96",
          "place 0 0 2147483647 600 96", "place", "nonsense", "\r\n\n"})
        EXPECT_FALSE(parseFrameSettings(text).place) << text;
    const FrameSettings read = parseFrameSettings("?\nhistory x\r\nplace 1 2 3 4 96\nhistory");
    EXPECT_EQ(read.history, std::vector<std::wstring>{L"x"});
    EXPECT_TRUE(read.place);
}

TEST(FrameSettings, TwoRunsAddToOneList) {
    FrameSettings stored = parseFrameSettings("history a\nprogram p\nprogram q\nplace 1 2 3 4 96");
    FrameSettings later;
    later.addLine(L"b");
    later.addProgram(L"p");
    stored.add(later);
    EXPECT_EQ(stored.history, (std::vector<std::wstring>{L"a", L"b"}));
    EXPECT_EQ(stored.programs, (std::vector<std::wstring>{L"q", L"p"}));
    EXPECT_TRUE(stored.place);
    for (int i = 0; i < 1000; ++i) stored.addLine(std::to_wstring(i));
    EXPECT_EQ(stored.history.size(), 500U);
    EXPECT_EQ(stored.history.back(), L"999");
}

TEST(FramePlace, ComesBackWhereAPersonSeesIt) {
    const FrameBox stood = {100, 50, 900, 650};
    EXPECT_EQ(placeWithin({stood, 96, false}, 96, SCREEN), stood);
    EXPECT_EQ(placeWithin({stood, 96, false}, 144, SCREEN), (FrameBox{80, 50, 1280, 950}));
    EXPECT_EQ(placeWithin({{5000, -300, 5800, 300}, 96, false}, 96, SCREEN), (FrameBox{480, 0, 1280, 600}));
    EXPECT_EQ(placeWithin({{0, 0, 3000, 20}, 96, false}, 96, SCREEN), (FrameBox{0, 0, 1280, 240}));
}

TEST(NameGroups, LettersShareAGroupAsLongAsThereIsRoom) {
    const auto groups = groupNames({L"D1", L"B1", L"A1", L"A2", L"C3", L"C1", L"C2", L"C4"}, 3);
    ASSERT_EQ(groups.size(), 3U);
    EXPECT_EQ(groups[0].title, L"&A - B");
    EXPECT_EQ(groups[0].names, (std::vector<std::wstring>{L"A1", L"A2", L"B1"}));
    EXPECT_EQ(groups[1].title, L"&C");
    EXPECT_EQ(groups[1].names.size(), 4U);
    EXPECT_EQ(groups[2].title, L"&D");
    EXPECT_TRUE(groupNames({}, 3).empty());
}
