#include "src/dialog/SelectionText.h"

CString selectionText(std::span<const int> indexes) {
    CString text;
    for (const int index : indexes) {
        if (!text.IsEmpty()) text += L' ';
        text += std::to_wstring(index);
    }
    return text;
}
