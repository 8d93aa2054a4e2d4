#include "src/tiles/EndOfEdit.h"

EditedText endOfEdit(const CString& typed, const CString& lastGood, const UnitConverters& converters) {
    const CString text = typed.IsEmpty() ? CString(L"0.0") : typed;
    const auto value = converters.parse(text);
    if (!value) return {lastGood, lastGood};
    const CString shown = converters.format(*value).value_or(text);
    return {shown, shown};
}
