// A row of a list control as one text.
#include "src/listctrl/RowText.h"
#include "tests/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::wstring text = textWithTabs(data, size);
    RowCells live, waiting;
    live.read(text);
    waiting.readWaiting(text);
    const bool keepsBlanks = text.find(L'\t') == text.npos;

    std::wstring joined;
    while (const wchar_t* cell = live.next()) {
        const wchar_t* same = waiting.next();
        require(same && (keepsBlanks ? cell : trimBlanksRight(cell)) == same);
        joined += cell + std::wstring(L"\t");
    }
    require(!waiting.next());
    require(joined == text + L"\t");
    return 0;
}
