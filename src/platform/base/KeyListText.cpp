#include "src/platform/base/KeyListText.h"

std::wstring_view keyListName(std::wstring_view text) {
    const size_t comma = text.find(L',');
    return comma == std::wstring_view::npos ? std::wstring_view{} : text.substr(0, comma);
}

std::optional<KeyListText> splitKeyList(std::wstring_view text) {
    size_t comma = text.find(L',', 1);
    if (comma == std::wstring_view::npos) return std::nullopt;
    KeyListText list{text.substr(0, comma), {}};
    while (comma != std::wstring_view::npos) {
        const size_t start = comma + 1;
        comma = text.find(L',', start);
        list.keys.emplace_back(text.substr(start, comma - start));
    }
    return list;
}

std::optional<KeyListText> parseKeyList(std::wstring_view text) { return splitKeyList(toLower(text)); }
