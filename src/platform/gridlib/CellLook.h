// What a cell's style says beside the value: each attribute is there or not. Portable.
#pragma once

#include <cstdint>
#include <optional>
#include <tuple>

#include "src/platform/gridlib/CellText.h"

// Control types with a meaning of their own. A cell of any other type is a drop-down list when it has
// choices, and text otherwise.
enum ControlType : uint16_t {
    CONTROL_HEADER = 0,         // a header that nobody gave another type
    CONTROL_CHECK = 52501,      // a box to tick; its two choices, if it has them, are the texts of off and on
    CONTROL_EDIT = 52512,       // text to edit
    CONTROL_STATIC = 52513,     // text to read
    CONTROL_FACE_PUSH = 52520,  // on the face colour, raised
    CONTROL_FACE = 52533,       // on the face colour
};

enum HorizontalAlignment : uint8_t { ALIGN_LEFT = 0, ALIGN_CENTER = 1, ALIGN_RIGHT = 2 };

// Bits of the merge attribute.
enum MergeCell : uint8_t { MERGE_NOT = 0, MERGE_ALONG_ROW = 1, MERGE_DOWN_COLUMN = 2 };

struct CellLook {
    std::optional<uint16_t> control;
    std::optional<bool> readOnly;
    std::optional<bool> wrap;
    std::optional<uint8_t> horizontal;  // HorizontalAlignment
    std::optional<uint8_t> merge;       // MergeCell
    std::optional<uint32_t> interior;   // 0x00BBGGRR
    std::optional<uint32_t> textColor;  // 0x00BBGGRR
    std::optional<uint16_t> format;     // NumberFormat.h
    std::optional<int32_t> places;      // decimal places, as given
    std::optional<CellText> choices;    // one to a line
    // The style has a value too, which is kept beside the look.
    bool hasValue = false;

    bool operator==(const CellLook&) const = default;
    // Takes over what `over` has.
    void apply(const CellLook& over);
    size_t hash() const;
};
