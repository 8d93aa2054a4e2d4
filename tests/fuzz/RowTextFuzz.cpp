// A row of a list control as one text.
#include "src/listctrl/RowText.h"
#include "tests/fuzz/ListTextFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::wstring text = textWithTabs(data, size);
    const CStringArray cells = splitAtTabs(text);
    const CStringArray waiting = waitingRowCells(text);
    require(!cells.empty() && waiting.size() == cells.size());

    std::wstring joined;
    for (size_t at = 0; at < cells.size(); ++at) {
        if (at > 0) joined += L'\t';
        joined += cells[at];
        const bool blanksStay = cells.size() == 1;
        require(waiting[at] == (blanksStay ? cells[at] : CString(trimBlanksRight(cells[at]))));
    }
    require(joined == text);
    return 0;
}
