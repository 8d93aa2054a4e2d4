// A tree's window: its records go with it, and what is too long for it shows whole under the pointer.
#include <gtest/gtest.h>

#include <functional>

#include "src/platform/mfc/RedrawHold.h"
#include "src/tree/TreeItems.h"
#include "src/tree/WexTree.h"
#include "tests/support/Canvas.h"
#include "tests/support/Messages.h"
#include "tests/ui/tree/LiveObjects.h"

namespace {

struct TreeWindowTest : testing::Test {
    TreeWindowTest() {
        parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, 200, 200}, nullptr, 0);
    }

    HWND makeTree() const {
        return CreateWindowW(WC_TREEVIEWW, L"", WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS, 0, 0, 100, 100,
                             parent.m_hWnd, nullptr, nullptr, nullptr);
    }

    CWnd parent;
};

constexpr TreeItemImages WITH_ALTERNATE{1, 1, 2};

// Opens and closes trees with items that have records; gives how many objects are left.
long leftBehind(const TreeWindowTest& test, int rounds) {
    const long before = liveObjects();
    for (int round = 0; round < rounds; ++round) {
        WexTree tree;
        tree.SubclassWindow(test.makeTree());
        const HTREEITEM above = insertTreeItem(tree, nullptr, TVI_LAST, L"above", WITH_ALTERNATE);
        needTreeRecord(tree, insertTreeItem(tree, above, TVI_LAST, L"below", {}))->m_data = round;
        tree.deleteItem(above);
        ::DestroyWindow(tree.m_hWnd);
    }
    return liveObjects() - before;
}

TEST_F(TreeWindowTest, AThousandTreesWithRecordsLeaveNothing) {
    leftBehind(*this, 10);
    EXPECT_EQ(leftBehind(*this, 1000), 0);
}

TEST_F(TreeWindowTest, RecordsGoWithTheWindowAndNotWithTheirItems) {
    WexTree tree;
    tree.SubclassWindow(makeTree());
    const HTREEITEM item = insertTreeItem(tree, nullptr, TVI_LAST, L"item", WITH_ALTERNATE);
    const LPARAM parameter = treeItem(tree, item)->parameter;
    ASSERT_TRUE(parameter);
    tree.deleteItem(item);
    EXPECT_EQ(tree.recordOf(parameter)->m_alternateImage, 2);
    ::DestroyWindow(tree.m_hWnd);
    EXPECT_EQ(tree.recordOf(parameter), nullptr);
}

// Asks as a program's action does, while the control is at work on a message.
class Acting : public WexTree {
  public:
    std::function<void()> act;
    const MessageMap& messageMap() const override {
        static const MessageMap map(WexTree::messageMap(), {on<WM_USER, &Acting::onUser>()});
        return map;
    }

  private:
    void onUser() { act(); }
};

// The colours of the rows' texts differ from the background.
bool isDrawn(HWND tree, int row, int height) {
    for (int x = 0; x < 100; ++x)
        for (int y = row * height; y < (row + 1) * height; ++y)
            if (colorAt(tree, x, y) != GetSysColor(COLOR_WINDOW)) return true;
    return false;
}

TEST_F(TreeWindowTest, WhatAnActionDeletesIsNotDrawnWhileItsAlertStands) {
    Acting tree;
    tree.SubclassWindow(makeTree());
    const HTREEITEM first = insertTreeItem(tree, nullptr, TVI_LAST, L"first", {});
    insertTreeItem(tree, nullptr, TVI_LAST, L"second", {});
    releaseRedraw();
    const auto height = static_cast<int>(tree.SendMessage(TVM_GETITEMHEIGHT));
    ASSERT_TRUE(isDrawn(tree.m_hWnd, 0, height) && isDrawn(tree.m_hWnd, 1, height));
    bool wasDrawn = true, wasOtherDrawn = false;
    tree.act = [&] {
        tree.deleteItem(first);
        wasDrawn = isDrawn(tree.m_hWnd, 0, height);
        wasOtherDrawn = isDrawn(tree.m_hWnd, 1, height);
    };
    tree.SendMessage(WM_USER);
    EXPECT_FALSE(wasDrawn);
    EXPECT_TRUE(wasOtherDrawn);
    releaseRedraw();
    EXPECT_TRUE(isDrawn(tree.m_hWnd, 0, height)) << "the next item has moved up";
}

// The tip that Wine's tree leaves to us; Windows has its own way to it.
TEST_F(TreeWindowTest, ACutTextShowsWholeWhereThePointerRests) {
    WexTree tree;
    tree.SubclassWindow(makeTree());
    insertTreeItem(tree, nullptr, TVI_LAST, L"short", {});
    constexpr wchar_t CUT_TEXT[] = L"a text & that is much too long for a tree as narrow as this";
    insertTreeItem(tree, nullptr, TVI_LAST, CUT_TEXT, {});
    tree.SendMessage(WM_SETREDRAW, TRUE);
    const auto tip = reinterpret_cast<HWND>(tree.SendMessage(TVM_GETTOOLTIPS));
    const auto rows = static_cast<int>(tree.SendMessage(TVM_GETITEMHEIGHT));
    const auto rest = [&](int row) {
        const LPARAM at = MAKELPARAM(30, row * rows + rows / 2);
        tree.SendMessage(WM_MOUSEMOVE, 0, at);
        tree.SendMessage(WM_MOUSEHOVER, 0, at);
        return IsWindowVisible(tip) != FALSE;
    };
    EXPECT_FALSE(rest(0));
    EXPECT_TRUE(rest(1));
    EXPECT_EQ(tipText(tip, tree.m_hWnd, 1), CUT_TEXT);
    EXPECT_FALSE(rest(0));
    EXPECT_TRUE(rest(1));
    tree.SendMessage(WM_KEYDOWN, VK_DOWN);
    EXPECT_FALSE(IsWindowVisible(tip));
}

}  // namespace
