#include "store/Utf8.h"

#include <algorithm>

namespace {

constexpr char32_t REPLACEMENT = 0xFFFD;

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

void appendCharacter(std::string& bytes, char32_t c) {
    const int more = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    constexpr unsigned char FIRST[] = {0, 0xC0, 0xE0, 0xF0};
    bytes += static_cast<char>(FIRST[more] | c >> (6 * more));
    for (int i = more - 1; i >= 0; --i) bytes += static_cast<char>(0x80 | (c >> (6 * i) & 0x3F));
}

void appendCharacter(std::wstring& text, char32_t c) {
    if (sizeof(wchar_t) == 2 && c >= 0x10000) {
        text += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
        text += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
    } else {
        text += static_cast<wchar_t>(c);
    }
}

// The character at `at`, which moves behind it.
char32_t nextCharacter(std::string_view bytes, size_t& at) {
    const auto first = static_cast<unsigned char>(bytes[at++]);
    const size_t more = first >= 0xF0 && first < 0xF5   ? 3
                        : first >= 0xE0 && first < 0xF0 ? 2
                        : first >= 0xC2 && first < 0xE0 ? 1
                                                        : 0;
    if (!more) return REPLACEMENT;
    char32_t c = first & (0x3Fu >> more);
    for (size_t i = 0; i < more; ++i) {
        if (at >= bytes.size() || (bytes[at] & 0xC0) != 0x80) return REPLACEMENT;
        c = c << 6 | (bytes[at++] & 0x3F);
    }
    constexpr char32_t LEAST[] = {0, 0x80, 0x800, 0x10000};
    return c < LEAST[more] || c > 0x10FFFF ? REPLACEMENT : c;
}

bool isAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

}  // namespace

std::string toUtf8(std::wstring_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (size_t at = 0; at < text.size(); ++at) {
        auto c = static_cast<char32_t>(text[at]);
        if (isHighSurrogate(c) && at + 1 < text.size() && isLowSurrogate(static_cast<char32_t>(text[at + 1])))
            c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(text[++at]) - 0xDC00);
        appendCharacter(bytes, c);
    }
    return bytes;
}

void appendWide(std::wstring& text, std::string_view bytes) {
    for (size_t at = 0; at < bytes.size();) {
        const auto plainEnd = std::find_if_not(bytes.begin() + at, bytes.end(), isAscii);
        text.append(bytes.begin() + at, plainEnd);
        at = plainEnd - bytes.begin();
        if (at < bytes.size()) appendCharacter(text, nextCharacter(bytes, at));
    }
}
