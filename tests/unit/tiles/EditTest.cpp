#include <gtest/gtest.h>

#include "host/units/AngularUnits.h"
#include "host/units/LinearUnits.h"
#include "src/tiles/EditFilter.h"
#include "src/tiles/EndOfEdit.h"

// kept: but for the blank before a fraction, for which a dash is typed.
TEST(EditFilter, WhatTheHostShowsCanBeTypedAgain) {
    constexpr int FRACTIONAL = 5;
    const auto refused = [](const std::optional<std::wstring>& shown, EditMode mode, int unit) {
        std::wstring characters;
        for (const wchar_t c : shown.value())
            if (filterChar(c, *validChars(mode, unit)) == TypedChar::refuse) characters += c;
        if (mode == EditMode::numeric && unit == FRACTIONAL) std::erase(characters, L' ');
        return characters;
    };
    for (int unit = 1; unit <= 5; ++unit)
        for (int precision = 0; precision <= 8; ++precision)
            for (const double value : {0.0, -17.3, 123456.789, 4.0, 2.5}) {
                EXPECT_EQ(refused(units::distanceText(value, unit, precision), EditMode::numeric, unit), L"");
                EXPECT_EQ(refused(units::angleText(value, unit, precision), EditMode::angular, unit), L"");
            }
}

// What can be formatted, and what can't be parsed, is for sessions of edit boxes.
TEST(EndOfEdit, AValueThatCannotBeFormattedStaysAsItWasTyped) {
    CString seen;
    const UnitConverters converters{[&](const CString& text) -> std::optional<double> {
                                        seen = text;
                                        return 7;
                                    },
                                    [](double) { return std::nullopt; }};
    const EditedText edited = endOfEdit(L"7", L"old", converters);
    EXPECT_EQ(edited.shown, L"7");
    EXPECT_EQ(edited.lastGood, L"7");
    EXPECT_EQ(endOfEdit(L"", L"old", converters).shown, L"0.0");
    EXPECT_EQ(seen, L"0.0");
}
