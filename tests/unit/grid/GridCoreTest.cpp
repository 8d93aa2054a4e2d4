// What a window on a grid is told, and how the selection follows gestures.
#include <gtest/gtest.h>

#include "src/platform/gridlib/CGXGridCore.h"

namespace {

class ToldGrid : public CGXGridCore {
  public:
    int changes = 0;

  protected:
    void cellsChanged(const CGXRange&) override { ++changes; }
};

TEST(GridCoreTest, LockedPaintingShowsAtTheEndOnceAndOnlyWhenSomethingChanged) {
    ToldGrid grid;
    grid.SetRowCount(10);
    grid.SetColCount(3);
    grid.changes = 0;
    EXPECT_FALSE(grid.LockUpdate(true));
    EXPECT_TRUE(grid.LockUpdate(true));
    for (uint32_t row = 1; row <= 10; ++row) grid.SetValueRange(CGXRange(row, 1), L"x");
    grid.Redraw();
    EXPECT_EQ(grid.changes, 0);
    grid.LockUpdate(false);
    EXPECT_EQ(grid.changes, 1);
    grid.LockUpdate(true);
    grid.LockUpdate(false);
    EXPECT_EQ(grid.changes, 1);
}

TEST(GridCoreTest, CurrentCellStaysWithinTheTable) {
    CGXGridCore grid;
    EXPECT_FALSE(grid.SetCurrentCell(1, 0));
    grid.SetRowCount(5);
    grid.SetColCount(2);
    EXPECT_FALSE(grid.SetCurrentCell(0, 1)) << "a column header is no cell to stand on";
    EXPECT_TRUE(grid.SetCurrentCell(5, 0));
    grid.SetRowCount(3);
    EXPECT_EQ(grid.currentCell(), (CellPlace{3, 0}));
    EXPECT_TRUE(grid.selection().ranges().empty());
    grid.SetRowCount(0);
    EXPECT_FALSE(grid.selection().hasCurrent());
}

TEST(GridSelectionTest, GesturesBeginExtendAndAdd) {
    GridSelection selection;
    selection.begin(CGXRange::cells, {4, 2});
    selection.extend({2, 3});
    EXPECT_EQ(selection.ranges(), std::vector{CGXRange(2, 2, 4, 3)});
    EXPECT_EQ(selection.current(), (CellPlace{4, 2}));

    selection.begin(CGXRange::rows, {7, 0}, true);
    selection.extend({8, 5});
    ASSERT_EQ(selection.ranges().size(), 2u);
    EXPECT_EQ(selection.ranges()[1], CGXRange::ofRows(7, 8));
    EXPECT_TRUE(selection.contains(8, 100));
    EXPECT_FALSE(selection.contains(6, 2));

    selection.begin(CGXRange::columns, {1, 3});
    EXPECT_EQ(selection.ranges()[0].top, 1u) << "headers aren't data";
    selection.begin(CGXRange::columns, {1, 3}, true);
    EXPECT_TRUE(selection.ranges().empty()) << "begun once more, it is taken away";
    selection.all();
    EXPECT_TRUE(selection.contains(1, 0));
    EXPECT_FALSE(selection.contains(0, 1));
}

}  // namespace
