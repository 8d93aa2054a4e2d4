// What targets share.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

// Each byte up to a NUL a character, '|' a tab.
inline std::wstring textWithTabs(const uint8_t* data, size_t size) {
    std::wstring text(data, data + size);
    text.resize(std::min(text.find(L'\0'), text.size()));
    std::replace(text.begin(), text.end(), L'|', L'\t');
    return text;
}

inline void require(bool condition) {
    if (!condition) abort();
}
