// Key list text, as a resource module of anybody's brings it.
#include "src/platform/base/KeyListText.h"
#include "tests/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::wstring text(data, data + size);
    const auto list = parseKeyList(text);
    const size_t comma = text.find(L',', 1);
    require(list.has_value() == (comma != std::wstring::npos));
    if (!list) return 0;

    // Joined again, the fields give the text: none is lost, added or trimmed.
    std::wstring joined = list->name;
    for (const CString& key : list->keys) joined += L',' + key;
    require(joined == toLower(text));
    require(text[0] == L',' || keyListName(text) == text.substr(0, comma));
    return 0;
}
