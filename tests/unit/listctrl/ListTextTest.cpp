// How wide columns are. Which of them a text makes is for the session and the fuzzer.
#include <gtest/gtest.h>

#include "src/listctrl/ColumnText.h"

namespace {

// Each letter takes 7 pixels. Title and width of each column, one after the other.
std::wstring columns(std::wstring_view text) {
    std::wstring told;
    const auto widthOf = [](const CString& title) { return static_cast<int>(7 * title.size()); };
    for (const ListColumn& column : columnsFromText(text, widthOf))
        told += L"[" + column.title + L"]" + std::to_wstring(column.width);
    return told;
}

TEST(ColumnText, BlanksAtTheEndWidenTheColumn) {
    EXPECT_EQ(columns(L"\tName   \tA B "), L"[Name]70[A B]47") << "3 * 7 * 1.5 is 31.5";
    EXPECT_EQ(columns(L"\t  "), L"[]22");
    EXPECT_EQ(columns(L"\tName \t"), L"[Name]58");
    EXPECT_EQ(columns(L"\tName\t \t"), L"[Name]52[]16") << "a blank is no tab";
}

}  // namespace
