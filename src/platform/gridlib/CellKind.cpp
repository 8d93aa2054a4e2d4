#include "src/platform/gridlib/CellKind.h"

#include <algorithm>

#include "src/platform/gridlib/NumberFormat.h"

bool showsPlaces(const CellLook& look) { return look.format == FORMAT_PLACES && look.places; }

CellKind cellKind(const CellLook& look) {
    switch (look.control.value_or(CONTROL_EDIT)) {
        case CONTROL_HEADER:
            return CellKind::header;
        case CONTROL_STATIC:
            return CellKind::reading;
        case CONTROL_FACE:
            return CellKind::face;
        case CONTROL_FACE_PUSH:
            return CellKind::pushFace;
        case CONTROL_CHECK:
            return CellKind::check;
        case CONTROL_EDIT:
            break;
        default:
            if (look.choices && !look.choices->empty()) return CellKind::choice;
    }
    return look.wrap.value_or(false) ? CellKind::wrappedText : CellKind::text;
}

bool isEditable(const CellLook& look) {
    if (look.readOnly.value_or(false)) return false;
    switch (cellKind(look)) {
        case CellKind::text:
        case CellKind::wrappedText:
        case CellKind::choice:
        case CellKind::check:
            return true;
        default:
            return false;
    }
}

bool accepts(const CGXStyle& style, std::wstring_view text) {
    if (!isEditable(style)) return false;
    const CellKind kind = cellKind(style);
    if (kind == CellKind::check) return text == tickText(style, true) || text == tickText(style, false);
    if (text.empty()) return true;
    if (kind == CellKind::choice) {
        const CStringArray choices = style.choices();
        return std::find(choices.begin(), choices.end(), text) != choices.end();
    }
    return !showsPlaces(style.look()) || numberOf(text);
}

CString shownText(const CGXStyle& style) {
    if (showsPlaces(style.look()))
        if (const auto number = numberOf(style.value().view()))
            return textWithPlaces(*number, *style.look().places);
    return style.GetValue();
}

CString tickText(const CGXStyle& style, bool ticked) {
    const CStringArray choices = style.choices();
    if (choices.size() == 2) return choices[ticked];
    return ticked ? L"1" : L"0";
}

bool isTicked(const CGXStyle& style) { return style.value().view() == tickText(style, true); }
