#include "host/drive/KeyNames.h"

#include <gtest/gtest.h>

TEST(KeyNames, KeysAndHeldKeysInAnyCaseAndOrder) {
    EXPECT_EQ(parseKeyStroke(L"ENTER"), KeyStroke{0x0D});
    EXPECT_EQ(parseKeyStroke(L"f12"), KeyStroke{0x7B});
    EXPECT_EQ(parseKeyStroke(L"a"), KeyStroke{'A'});
    EXPECT_EQ(parseKeyStroke(L"7"), KeyStroke{'7'});
    EXPECT_EQ(parseKeyStroke(L"alt+SHIFT+f4"), (KeyStroke{.virtualKey = 0x73, .shift = true, .alt = true}));
    EXPECT_EQ(parseKeyStroke(L"Control+Home"), (KeyStroke{.virtualKey = 0x24, .control = true}));
}

TEST(KeyNames, OtherTextsAreNoKeys) {
    for (const wchar_t* text : {L"", L"+", L"Shift+", L"+A", L"Shift+Shift+A", L"A+Shift", L"f0", L"f13",
                                L"f01", L"enterr", L"\u00E4", L" a"}) {
        EXPECT_FALSE(parseKeyStroke(text)) << text;
    }
}

TEST(KeyNames, AStrokeIsNamedAsItIsRead) {
    EXPECT_EQ(keyStrokeName({.virtualKey = 'A', .shift = true, .control = true}), L"SHIFT+CTRL+A");
    for (int key = 0; key < 256; ++key) {
        const KeyStroke stroke{.virtualKey = key, .alt = true};
        const std::wstring name = keyStrokeName(stroke);
        if (name.empty()) continue;
        EXPECT_EQ(parseKeyStroke(name), stroke) << key;
    }
    EXPECT_EQ(keyStrokeName({.virtualKey = 0x11}), L"CTRL");
    EXPECT_EQ(keyStrokeName({.virtualKey = 0xFF}), L"");
}
