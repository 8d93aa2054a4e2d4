#include "host/services/Texts.h"

namespace {

constexpr char32_t REPLACEMENT = 0xFFFD;

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

void appendUtf8(std::string& bytes, char32_t c) {
    const auto tail = [&](int shift) { bytes += static_cast<char>(0x80 | (c >> shift & 0x3F)); };
    if (c < 0x80) {
        bytes += static_cast<char>(c);
    } else if (c < 0x800) {
        bytes += static_cast<char>(0xC0 | c >> 6);
        tail(0);
    } else if (c < 0x10000) {
        bytes += static_cast<char>(0xE0 | c >> 12);
        tail(6);
        tail(0);
    } else {
        bytes += static_cast<char>(0xF0 | c >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

void appendWide(std::wstring& text, char32_t c) {
    if (sizeof(wchar_t) == 2 && c >= 0x10000) {
        text += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
        text += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
    } else {
        text += static_cast<wchar_t>(c);
    }
}

// The character at `at`, which moves behind it.
char32_t nextUtf8(std::string_view bytes, size_t& at) {
    const auto first = static_cast<unsigned char>(bytes[at++]);
    if (first < 0x80) return first;
    const int more = first >= 0xF0 && first < 0xF5   ? 3
                     : first >= 0xE0 && first < 0xF0 ? 2
                     : first >= 0xC2 && first < 0xE0 ? 1
                                                     : 0;
    if (!more) return REPLACEMENT;
    char32_t c = first & (0x3F >> more);
    for (int i = 0; i < more; ++i) {
        if (at >= bytes.size() || (bytes[at] & 0xC0) != 0x80) return REPLACEMENT;
        c = c << 6 | (bytes[at++] & 0x3F);
    }
    constexpr char32_t least[] = {0, 0x80, 0x800, 0x10000};
    const bool surrogate = c >= 0xD800 && c < 0xE000;
    return c < least[more] || c > 0x10FFFF || surrogate ? REPLACEMENT : c;
}

}  // namespace

std::wstring wideText(std::u16string_view text) { return {text.begin(), text.end()}; }

std::u16string lispText(std::wstring_view text) { return {text.begin(), text.end()}; }

std::string utf8Text(std::wstring_view text) {
    std::string bytes;
    for (size_t at = 0; at < text.size(); ++at) {
        char32_t c = static_cast<char32_t>(text[at]);
        if (isHighSurrogate(c) && at + 1 < text.size() && isLowSurrogate(text[at + 1])) {
            c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(text[++at]) - 0xDC00);
        }
        appendUtf8(bytes, isHighSurrogate(c) || isLowSurrogate(c) ? REPLACEMENT : c);
    }
    return bytes;
}

std::wstring wideFromUtf8(std::string_view bytes) {
    std::wstring text;
    for (size_t at = 0; at < bytes.size();) appendWide(text, nextUtf8(bytes, at));
    return text;
}
