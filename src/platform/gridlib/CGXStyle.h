// The style of a cell: a value and a look, each attribute there or not. Portable.
#pragma once

#include <concepts>
#include <string_view>
#include <utility>

#include "src/platform/base/CString.h"
#include "src/platform/gridlib/CellLook.h"

class CGXStyle {
  public:
    CGXStyle() = default;
    CGXStyle(CellLook look, CellText value) : m_look(std::move(look)), m_value(std::move(value)) {}

    // A value is text; a number becomes the shortest text that reads as the same number.
    CGXStyle& SetValue(std::wstring_view text);
    CGXStyle& SetValue(double number);
    CGXStyle& SetValue(std::integral auto number) { return SetValue(std::to_wstring(number)); }
    CGXStyle& SetValue(CellText text);

    CGXStyle& SetControl(uint16_t type) { return set(m_look.control, type); }
    CGXStyle& SetReadOnly(bool readOnly) { return set(m_look.readOnly, readOnly); }
    CGXStyle& SetWrapText(bool wrap) { return set(m_look.wrap, wrap); }
    CGXStyle& SetHorizontalAlignment(uint8_t alignment) { return set(m_look.horizontal, alignment); }
    CGXStyle& SetMergeCell(uint8_t bits) { return set(m_look.merge, bits); }
    CGXStyle& SetInterior(uint32_t color) { return set(m_look.interior, color); }
    CGXStyle& SetTextColor(uint32_t color) { return set(m_look.textColor, color); }
    CGXStyle& SetFormat(uint16_t format) { return set(m_look.format, format); }
    CGXStyle& SetPlaces(int32_t places) { return set(m_look.places, places); }
    // One choice to a line.
    CGXStyle& SetChoiceList(std::wstring_view lines) { return set(m_look.choices, CellText(lines)); }

    // The value, or "" where there is none.
    CString GetValue() const { return CString(m_value.view()); }
    // The lines of the choice list; none where there is no list.
    CStringArray choices() const;

    const CellLook& look() const { return m_look; }
    const CellText& value() const { return m_value; }
    bool hasValue() const { return m_look.hasValue; }
    bool isEmpty() const { return m_look == CellLook(); }

    // Takes over the attributes that `over` has.
    void apply(const CGXStyle& over);

  private:
    template <class Value>
    CGXStyle& set(std::optional<Value>& attribute, Value value) {
        attribute = std::move(value);
        return *this;
    }

    CellLook m_look;
    CellText m_value;
};
