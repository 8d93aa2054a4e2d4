#include "src/grid/CellCode.h"

#include <gtest/gtest.h>

#include "src/platform/gridlib/CellKind.h"

namespace {

constexpr uint32_t FACE = 0xC0C0C0;

struct Wanted {
    int code;
    std::optional<uint16_t> control;
    std::optional<bool> readOnly, wrap;
    std::optional<uint32_t> interior;
    bool takesChoices;
};

TEST(CellCodeTest, CodeOfATextTellsHowTheCellIsEdited) {
    const Wanted cases[] = {
        {-1, {}, {}, {}, {}, false},
        {2, {}, {}, {}, {}, false},
        {52499, {}, {}, {}, {}, false},
        {-70000, {}, {}, {}, {}, false},
        {100, CONTROL_EDIT, {}, false, {}, false},
        {101, CONTROL_EDIT, {}, true, {}, false},
        {52500, uint16_t{52500}, {}, {}, {}, true},
        {52512, CONTROL_EDIT, {}, {}, {}, true},
        {52513, CONTROL_STATIC, true, {}, {}, true},
        {52520, CONTROL_FACE_PUSH, {}, {}, FACE, true},
        {52533, CONTROL_FACE, {}, {}, FACE, true},
    };
    for (const Wanted& wanted : cases)
        for (const bool withChoices : {false, true}) {
            const std::optional<CString> choices =
                withChoices ? std::optional<CString>(L"a\nb") : std::nullopt;
            const CGXStyle style = textCellStyle(L"text", wanted.code, choices, FACE);
            const CellLook& look = style.look();
            EXPECT_EQ(style.GetValue(), L"text");
            EXPECT_EQ(look.control, wanted.control) << wanted.code;
            EXPECT_EQ(look.readOnly, wanted.readOnly) << wanted.code;
            EXPECT_EQ(look.wrap, wanted.wrap) << wanted.code;
            EXPECT_EQ(look.interior, wanted.interior) << wanted.code;
            EXPECT_EQ(look.choices.has_value(), withChoices && wanted.takesChoices) << wanted.code;
        }
}

TEST(CellCodeTest, ANumberShowsItsPlacesAndKeepsItsValue) {
    const struct {
        double number;
        int places;
        const wchar_t *value, *shown;
    } cases[] = {{1.5, 2, L"1.5", L"1.50"},
                 {1.5, -1, L"1.5", L"1.5"},
                 {2, 0, L"2", L"2"},
                 {1.0 / 3, 100, L"0.3333333333333333", L"0.333333333333333"}};
    for (const auto& wanted : cases) {
        const CGXStyle style = numberCellStyle(wanted.number, wanted.places);
        EXPECT_EQ(style.GetValue(), wanted.value);
        EXPECT_EQ(shownText(style), wanted.shown);
    }
}

}  // namespace
