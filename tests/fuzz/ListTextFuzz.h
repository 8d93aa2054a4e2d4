// Text for the targets that read a list control's texts: each byte a character, '|' a tab.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

inline std::wstring textWithTabs(const uint8_t* data, size_t size) {
    std::wstring text(data, data + size);
    std::replace(text.begin(), text.end(), L'|', L'\t');
    return text;
}

inline void require(bool condition) {
    if (!condition) abort();
}
