#include "host/drive/KeyNames.h"

#include <gtest/gtest.h>

namespace {

TEST(KeyNames, KeysAndHeldKeysInAnyCaseAndOrder) {
    EXPECT_EQ(parseKeyStroke(L"ENTER"), KeyStroke{0x0D});
    EXPECT_EQ(parseKeyStroke(L"f12"), KeyStroke{0x7B});
    EXPECT_EQ(parseKeyStroke(L"a"), KeyStroke{'A'});
    EXPECT_EQ(parseKeyStroke(L"7"), KeyStroke{'7'});
    EXPECT_EQ(parseKeyStroke(L"alt+SHIFT+f4"), (KeyStroke{.virtualKey = 0x73, .shift = true, .alt = true}));
    EXPECT_EQ(parseKeyStroke(L"Control+Home"), (KeyStroke{.virtualKey = 0x24, .control = true}));
}

TEST(KeyNames, OtherTextsAreNoKeys) {
    for (const wchar_t* text : {L"", L"+", L"Shift", L"Shift+", L"+A", L"Shift+Shift+A", L"A+Shift", L"f0",
                                L"f13", L"f01", L"enterr", L"\u00E4", L" a"}) {
        EXPECT_FALSE(parseKeyStroke(text)) << text;
    }
}

}  // namespace
