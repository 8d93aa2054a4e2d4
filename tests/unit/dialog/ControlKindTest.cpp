#include "src/dialog/ControlKind.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

const ButtonCaptions captions{L"Pick", L"Pick", L"Browse", L"Search"};

ControlKind kind(std::wstring_view className, std::wstring_view caption = L"", uint32_t style = 0x50010000,
                 uint32_t exStyle = 0) {
    return controlKindOf({className, style, exStyle, caption}, captions);
}

TEST(ControlKind, FollowsClassStyleAndCaptionInOrder) {
    EXPECT_EQ(kind(L"Button", L"<<", FRAME_STYLE, SLIDE_EX_STYLE), ControlKind::slideImage);
    EXPECT_EQ(kind(L"Button", L"", 0x50010000, SLIDE_EX_STYLE | 0x4), ControlKind::slideImage)
        << "one extended style among others";
    EXPECT_EQ(kind(L"Button", L"<<", FRAME_STYLE), ControlKind::frame);
    EXPECT_EQ(kind(L"Button", L"", FRAME_STYLE | 0x00010000), ControlKind::button) << "the whole style";
    EXPECT_EQ(kind(L"Button", L"Group", 0x50000007), ControlKind::button);
    EXPECT_EQ(kind(L"Button", L"Group", 0x44000007), ControlKind::button);
    EXPECT_EQ(kind(L"Button", L"a<<b"), ControlKind::imageButton);
    EXPECT_EQ(kind(L"Button", L"OK"), ControlKind::button);
    EXPECT_EQ(kind(L"Edit", L">>"), ControlKind::edit);
    EXPECT_EQ(kind(L"button", L"<<"), ControlKind::unknown) << "class names count with case";
    EXPECT_EQ(kind(L"msctls_progress32"), ControlKind::unknown);
}

struct LookRow {
    const wchar_t* caption;
    const wchar_t* text;
    int icon;
};

TEST(ImageButton, EachCaptionGivesItsTextAndIcon) {
    const LookRow rows[] = {
        {L"<<", L"", 209},
        {L"<< Back", L"Back", 209},
        {L"a << b", L"a b", 209},
        {L">>", L"", 210},
        {L"More >>", L"More ", 210},
        {L">> Next", L"Next", 210},
        {L">>>> x", L"x", 210},
        {L"Sort ^", L"Sort", 1005},
        {L"Sort   v", L"Sort", 1006},
        {L"pick", L"", 211},
        {L"BROWSE", L"", 212},
        {L"search", L"", 212},
        {L"Pick it", L"Pick it", 211},
        {L"Browse it", L"Browse it", 212},
    };
    for (const LookRow& row : rows) {
        const auto look = imageButtonLook(row.caption, captions);
        ASSERT_TRUE(look) << row.caption;
        EXPECT_EQ(look->text, row.text) << row.caption;
        EXPECT_EQ(look->icon, row.icon) << row.caption;
        EXPECT_EQ(look->scaledIcon, row.icon > 1000) << row.caption;
    }
    EXPECT_FALSE(imageButtonLook(L"Searching", captions)) << "caption D counts whole only";
    EXPECT_EQ(tipText(L"Pre&vious"), L"Previous (Alt+V)");
    EXPECT_EQ(tipText(L"No && mnemonic"), L"No && mnemonic");
}

TEST(ImageButton, IconsGrowWithTheMonitor) {
    const ImageButtonLook stretched{L"", ICON_UP, true}, pictured{L"", ICON_ARROWS_LEFT};
    for (const auto& [scale, scaledSide, pictureSide] : {std::tuple{1.0, 16, 16},
                                                         {1.25, 20, 20},
                                                         {1.5, 24, 24},
                                                         {1.75, 28, 24},
                                                         {2.0, 32, 32},
                                                         {3.0, 48, 32},
                                                         {0.9, 14, 16}}) {
        EXPECT_EQ(iconSide(stretched, scale), scaledSide) << scale;
        EXPECT_EQ(iconSide(pictured, scale), pictureSide) << scale;
    }
}

}  // namespace
