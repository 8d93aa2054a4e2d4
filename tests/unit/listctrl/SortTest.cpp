#include <gtest/gtest.h>

#include "host/units/LinearUnits.h"
#include "tests/unit/listctrl/PlainSort.h"
#include "tests/unit/listctrl/RandomCells.h"

namespace {

using Cells = std::vector<std::wstring>;

std::vector<int> sortedOrder(const Cells& cells, bool ascending, const DistanceParser& parse) {
    return ::sortedOrder(std::vector<std::wstring_view>(cells.begin(), cells.end()), ascending, parse);
}

// Reads any text in any unit, or fails at it, each time in its own way.
std::optional<double> parseOddly(const std::wstring& text, int unit) {
    const size_t number = std::hash<std::wstring>()(text + std::to_wstring(unit)) % 97;
    return number % 4 ? std::optional<double>(number) : std::nullopt;
}

TEST(CellOrder, ComesOutAsThePlainProcedureForAnyTable) {
    RandomCells random(1);
    for (int table = 0; table < 6000; ++table) {
        const int mix = random.below(5);
        Cells cells(random.below(table % 50 ? 25 : 400));
        for (std::wstring& cell : cells) cell = random.cell(mix);
        const bool ascending = random.below(2);
        for (const auto& parse : {DistanceParser(units::distanceFromText), DistanceParser(parseOddly)})
            ASSERT_EQ(sortedOrder(cells, ascending, parse), PlainSort(cells, ascending, parse).order())
                << "table " << table;
    }
}

// A comparison that agrees with nothing nests the ranges as deep as there are rows.
TEST(CellOrder, AnyComparisonComesToAnEnd) {
    const Cells cells(3000, L"1");
    int calls = 0;
    const auto rising = [&](const wchar_t*, int) { return std::optional<double>(++calls); };
    EXPECT_EQ(sortedOrder(cells, true, rising).size(), cells.size());
    EXPECT_EQ(calls, 3000) << "each text is parsed once";
    Cells alternating;
    for (int row = 0; row < 3000; ++row) alternating.push_back(row % 2 ? L"5" : L"a" + std::to_wstring(row));
    EXPECT_EQ(sortedOrder(alternating, false, units::distanceFromText).size(), alternating.size());
}

}  // namespace
