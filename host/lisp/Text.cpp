#include "host/lisp/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace lisp {

std::string toUtf8(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        uint32_t code = text[i];
        bool pair = code >= 0xD800 && code < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
                    text[i + 1] < 0xE000;
        if (pair) code = 0x10000 + ((code - 0xD800) << 10) + (text[++i] - 0xDC00);
        if (code < 0x80) {
            bytes += char(code);
            continue;
        }
        if (code < 0x800) {
            bytes += char(0xC0 | code >> 6);
        } else {
            if (code < 0x10000) {
                bytes += char(0xE0 | code >> 12);
            } else {
                bytes += char(0xF0 | code >> 18);
                bytes += char(0x80 | (code >> 12 & 0x3F));
            }
            bytes += char(0x80 | (code >> 6 & 0x3F));
        }
        bytes += char(0x80 | (code & 0x3F));
    }
    return bytes;
}

namespace {

// The code point at the start of `bytes` and its length; length 0 where it is no UTF-8.
struct Decoded {
    uint32_t code;
    size_t length;
};

Decoded decodeOne(std::string_view bytes) {
    auto byte = [&](size_t i) { return uint32_t(uint8_t(bytes[i])); };
    uint32_t lead = byte(0);
    if (lead < 0x80) return {lead, 1};
    size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return {0, 0};
    uint32_t code = lead & (0x7F >> length);
    for (size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80) return {0, 0};
        code = code << 6 | (byte(i) & 0x3F);
    }
    static constexpr uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (code < smallest[length] || code > 0x10FFFF) return {0, 0};
    return {code, length};
}

std::u16string fromUtf16(std::string_view bytes, bool bigEndian) {
    std::u16string text;
    for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
        auto first = uint8_t(bytes[i]), second = uint8_t(bytes[i + 1]);
        text += char16_t(bigEndian ? first << 8 | second : second << 8 | first);
    }
    return text;
}

}  // namespace

std::u16string fromUtf8(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        auto [code, length] = decodeOne(bytes);
        if (length == 0) {
            code = uint8_t(bytes[0]);
            length = 1;
        }
        if (code >= 0x10000) {
            text += char16_t(0xD800 + ((code - 0x10000) >> 10));
            code = 0xDC00 + ((code - 0x10000) & 0x3FF);
        }
        text += char16_t(code);
        bytes.remove_prefix(length);
    }
    return text;
}

std::u16string decodeFile(std::string_view bytes) {
    std::u16string text;
    if (bytes.starts_with("\xFF\xFE"))
        text = fromUtf16(bytes.substr(2), false);
    else if (bytes.starts_with("\xFE\xFF"))
        text = fromUtf16(bytes.substr(2), true);
    else
        text = fromUtf8(bytes.starts_with("\xEF\xBB\xBF") ? bytes.substr(3) : bytes);
    size_t kept = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        bool pair = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
        if (!pair) text[kept++] = text[i] == u'\r' ? u'\n' : text[i];
    }
    text.resize(kept);
    return text;
}

char16_t upperCase(char16_t c) {
    if (c < 0x80) return c >= u'a' && c <= u'z' ? char16_t(c - 0x20) : c;
    if (c == 0xFF) return 0x178;
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return char16_t(c - 0x20);
    // Latin Extended-A: pairs, capital first, whose parity changes twice; dotted and dotless i stay.
    bool evenCapitals = (c >= 0x100 && c <= 0x137 && c != 0x131) || (c >= 0x14A && c <= 0x177);
    bool oddCapitals = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
    if (evenCapitals && (c & 1)) return char16_t(c - 1);
    if (oddCapitals && !(c & 1)) return char16_t(c - 1);
    if (c >= 0x3B1 && c <= 0x3C9 && c != 0x3C2) return char16_t(c - 0x20);
    if (c >= 0x430 && c <= 0x44F) return char16_t(c - 0x20);
    if (c >= 0x450 && c <= 0x45F) return char16_t(c - 0x50);
    return c;
}

char16_t lowerCase(char16_t c) {
    if (c < 0x80) return c >= u'A' && c <= u'Z' ? char16_t(c + 0x20) : c;
    if (c == 0x178) return 0xFF;
    // Each lower case letter is 0x20, 0x50 or 1 above its capital.
    for (char16_t step : {0x20, 0x50, 1})
        if (upperCase(char16_t(c + step)) == c) return char16_t(c + step);
    return c;
}

std::u16string upperCase(std::u16string_view text) {
    std::u16string result(text);
    for (char16_t& letter : result) letter = upperCase(letter);
    return result;
}

std::u16string lowerCase(std::u16string_view text) {
    std::u16string result(text);
    for (char16_t& letter : result) letter = lowerCase(letter);
    return result;
}

std::u16string decimal(int64_t number) {
    char digits[24];
    char* end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    return std::u16string(digits, end);
}

std::u16string decimal(double number) {
    if (std::isnan(number)) return u"nan";
    // Beyond every finite one, so that it reads back.
    if (std::isinf(number)) return number < 0 ? u"-1e999" : u"1e999";
    char digits[32];
    char* end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    std::u16string text(digits, end);
    if (text.find_first_of(u".e") == text.npos) text += u".0";
    return text;
}

std::optional<double> parseReal(std::u16string_view text) {
    std::string digits;
    for (char16_t c : text) {
        bool allowed =
            (c >= u'0' && c <= u'9') || c == u'.' || c == u'e' || c == u'E' || c == u'-' || c == u'+';
        if (!allowed) return std::nullopt;
        digits += char(c);
    }
    bool signedPlus = digits.starts_with('+');
    const char* start = digits.data() + signedPlus;
    const char* end = digits.data() + digits.size();
    if (signedPlus && (start == end || *start == '-')) return std::nullopt;
    double number = 0;
    auto [rest, fault] = std::from_chars(start, end, number);
    if (rest != end || fault == std::errc::invalid_argument) return std::nullopt;
    if (fault == std::errc::result_out_of_range) {
        // Too large and too small share this code; a negative exponent tells which it was.
        bool tiny = digits.find("e-") != digits.npos || digits.find("E-") != digits.npos ||
                    digits.find_first_of("eE") == digits.npos;
        number = tiny ? 0.0 : HUGE_VAL;
        if (digits.starts_with('-')) number = -number;
    }
    return number;
}

}  // namespace lisp
