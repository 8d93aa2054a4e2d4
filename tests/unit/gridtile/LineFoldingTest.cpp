#include "src/grid/LineFolding.h"

#include <gtest/gtest.h>

TEST(LineFoldingTest, KeyFieldLacksItsLastCharacter) {
    const struct {
        const wchar_t* line;
        int keyColumn;
        const wchar_t* key;
    } cases[] = {
        {L"AB\tCD", -1, L"AB\tCD"},
        {L"", 0, L""},
        {L"AB\tCD", 0, L"A"},
        {L"A\tCD", 0, L""},
        {L"\tEF", 0, L""},
        {L"A", 0, L""},
        {L"  AB \tCD", 0, L"AB"},
        // From the second field on the tab in front is a character of it, until it is trimmed.
        {L"AB\tCD\tE", 1, L"C"},
        {L"AB\t\tE", 1, L""},
        {L"AB\tC\tE", 1, L""},
        {L"AB\tCD\tEF", 2, L"E"},
        {L"AB\tCD", 2, L"AB\tCD"},
        {L"AB\tCD", -2, L"AB\tCD"},
        // A line that begins with a tab has its first two fields taken as one.
        {L"\tCD\tEF", 1, L"E"},
        {L" x\tCD", 0, L" "},
        {L"\t x\tCD", 1, L"C"},
    };
    for (const auto& wanted : cases)
        EXPECT_EQ(CString(keyField(wanted.line, wanted.keyColumn)), wanted.key)
            << wanted.keyColumn << " of " << ::testing::PrintToString(std::wstring(wanted.line));
}

TEST(LineFoldingTest, FieldsOfTheNextLineGoBelowThoseOfTheLine) {
    const struct {
        const wchar_t *line, *next, *folded;
    } cases[] = {
        {L"AB\tCD", L"\tEF", L"CD\nEF\t"},
        {L"CD\nEF\t", L"\tGH", L""},
        {L"AB\tCD", L"xx\tEF", L"AB\nxx\tCD\nEF\t"},
        {L"AB\tCD", L"x\tEF", L"AB \n\tCD\nEF\t"},
        {L"AB\tCD\tGH", L"xx\t\tyy", L"AB\nxx\tGH\nyy\t"},
        {L"  AB\tCD", L"   xx\t   y", L"AB\nxx\tCD \n\t"},
        {L"AB\tCD", L"xx", L"AB\nxx\t"},
        {L"AB", L"xx\tyy", L"AB\nxx\t"},
        {L"AB\tCD", L"", L"AB\tCD"},
        {L"", L"xx\tyy", L""},
    };
    for (const auto& wanted : cases) {
        FoldedLine folded(wanted.line);
        folded.fold(wanted.next);
        EXPECT_EQ(folded.text(), wanted.folded) << ::testing::PrintToString(std::wstring(wanted.line));
    }
}

// A blank that an earlier round has put in an empty field is a leading one for the next.
TEST(LineFoldingTest, ManyLinesAreFoldedOneAfterTheOther) {
    FoldedLine folded(L"AB\t\tCD\tEF");
    for (const wchar_t* next : {L"xx\ty\tzz\tuu", L"vv\tww\tss", L"\tii\tjj"}) folded.fold(next);
    EXPECT_EQ(folded.text(), L"\n\nww\nii\tCD\nzz\nss\njj\t");
}
