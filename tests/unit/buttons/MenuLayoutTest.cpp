#include "src/platform/buttons/MenuLayout.h"

#include <gtest/gtest.h>

#include <string_view>

constexpr MenuMetrics METRICS = {
    .dpi = 96, .iconSide = 16, .lineHeight = 15, .labelWidth = 100, .shortcutWidth = 40};

TEST(MenuText, TheTabPartsLabelAndShortcut) {
    EXPECT_EQ(splitMenuText(L"&Copy\tCtrl+C").label, L"&Copy");
    EXPECT_EQ(splitMenuText(L"&Copy\tCtrl+C").shortcut, L"Ctrl+C");
    EXPECT_EQ(splitMenuText(L"Fit").label, L"Fit");
    EXPECT_TRUE(splitMenuText(L"Fit").shortcut.empty());
}

TEST(MenuItem, ItsPartsStandSideBySideAtEachScale) {
    for (const int dpi : {96, 120, 144, 192}) {
        MenuMetrics metrics = METRICS;
        metrics.dpi = dpi;
        metrics.iconSide = 16 * dpi / 96;
        const MenuBox item = {2, 30, 2 + menuItemWidth(metrics), 30 + menuItemHeight(metrics)};
        const MenuItemParts parts = placeMenuItem(item, metrics);
        EXPECT_GE(parts.mark.left, item.left) << dpi;
        EXPECT_GE(parts.mark.top, item.top) << dpi;
        EXPECT_EQ(parts.mark.width(), metrics.iconSide) << dpi;
        EXPECT_GT(parts.label.left, parts.mark.right) << dpi;
        EXPECT_EQ(parts.label.width(), metrics.labelWidth) << dpi;
        EXPECT_GT(parts.shortcut.left, parts.label.right) << dpi;
        EXPECT_EQ(parts.shortcut.width(), metrics.shortcutWidth) << dpi;
        EXPECT_GE(parts.arrow.left, parts.shortcut.right) << dpi;
        EXPECT_LE(parts.arrow.right, item.right) << dpi;
    }
}

TEST(MenuItem, WithoutShortcutsThereIsNoRoomForThem) {
    MenuMetrics bare = METRICS;
    bare.shortcutWidth = 0;
    EXPECT_LT(menuItemWidth(bare), menuItemWidth(METRICS) - METRICS.shortcutWidth);
}

TEST(MenuKey, ChoosesTheOnlyItemAndGoesRoundAmongSeveral) {
    constexpr std::wstring_view keys(L"cp\0px", 5);
    EXPECT_EQ(answerMenuKey(keys, L'C', -1), (MenuKeyAnswer{0, true}));
    EXPECT_EQ(answerMenuKey(keys, L'p', -1), (MenuKeyAnswer{1, false}));
    EXPECT_EQ(answerMenuKey(keys, L'p', 1), (MenuKeyAnswer{3, false}));
    EXPECT_EQ(answerMenuKey(keys, L'p', 3), (MenuKeyAnswer{1, false}));
    EXPECT_EQ(answerMenuKey(keys, L'z', 0), MenuKeyAnswer());
    EXPECT_EQ(answerMenuKey(keys, L'\0', 0), MenuKeyAnswer());
    EXPECT_EQ(answerMenuKey({}, L'a', -1), MenuKeyAnswer());
}
