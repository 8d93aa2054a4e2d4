// The choice of a database: whatever it is, it names a target or an error, and never shows a secret.
#include "host/services/DataChoice.h"
#include "tests/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::wstring text = textWithTabs(data, size);
    const DataChoice choice = parseDataChoice(text);
    require(!choice.error.empty() || text.ends_with(choice.target));

    // A choice that is taken stays one with an attribute more.
    const DataChoice longer = parseDataChoice(text + L";PWD={s}}ecret};x=y");
    if (!choice.isOdbc || !choice.error.empty()) return 0;
    require(longer.error.empty());
    require(longer.shown.find(L"ecret") == choice.shown.find(L"ecret"));
    require(longer.shown.ends_with(L";PWD=***;x=y"));
    return 0;
}
