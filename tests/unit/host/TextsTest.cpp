#include "host/services/Texts.h"

#include <gtest/gtest.h>

TEST(Texts, Utf8OfEveryLength) {
    const std::wstring text = wideFromUtf8("a\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(text.substr(0, 3), L"a\u00FC\u20AC");
    EXPECT_EQ(utf8Text(text), "a\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80");
    // The system's wide texts hold pairs of surrogates.
    EXPECT_EQ(utf8Text(std::wstring{wchar_t(0xD83D), wchar_t(0xDE00)}), "\xF0\x9F\x98\x80");
}

TEST(Texts, WrongBytesAndUnitsAreReplacedAndTheRestStands) {
    constexpr const char* MARK = "\xEF\xBF\xBD";
    EXPECT_EQ(utf8Text(std::wstring{L'a', wchar_t(0xD83D), L'b'}), std::string("a") + MARK + "b");
    for (const char* wrong : {"\xFF", "\x80", "\xC0", "\xF8"}) {
        EXPECT_EQ(utf8Text(wideFromUtf8(std::string("a") + wrong + "b")), std::string("a") + MARK + "b");
    }
    for (const char* cut : {"\xC3", "\xE2\x82", "\xED\xA0\x80", "\xE0\x80\x80", "\xF4\x90\x80\x80"}) {
        EXPECT_EQ(utf8Text(wideFromUtf8(std::string(cut))), MARK);
    }
}
