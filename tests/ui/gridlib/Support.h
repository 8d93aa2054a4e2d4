// A grid in a window of its own, worked by messages, which notes what it hears.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "src/platform/gridlib/CGXGridWnd.h"
#include "src/platform/gridlib/GridWindowClass.h"
#include "src/platform/mfc/ModuleState.h"
#include "tests/support/Messages.h"

class NotingGrid : public CGXGridWnd {
  public:
    // Of each event a line, such as "select 3 2 5 2 key" or "modify 1 1 abc".
    std::vector<std::wstring> events;

    void OnChangedSelection(const CGXRange* range, bool dragging, bool key) override {
        EXPECT_NE(GetCapture() == m_hWnd, !dragging) << "told while the mouse is captured";
        std::wstring event = L"select";
        if (range)
            for (const uint32_t at : {range->top, range->left, range->bottom, range->right})
                event += L' ' + std::to_wstring(at);
        events.push_back(event + (dragging ? L" drag" : L"") + (key ? L" key" : L""));
    }
    void OnModifyCell(uint32_t row, uint32_t col) override {
        events.push_back(L"modify " + std::to_wstring(row) + L' ' + std::to_wstring(col) + L' ' +
                         GetValueRowCol(row, col));
    }
    void OnPasted(size_t taken, size_t refused, size_t outside) override {
        events.push_back(L"pasted " + std::to_wstring(taken) + L' ' + std::to_wstring(refused) + L' ' +
                         std::to_wstring(outside));
    }
    void OnTooManyCells() override { events.push_back(L"too many"); }

    std::vector<std::wstring> takeEvents() { return std::exchange(events, {}); }
};

using Events = std::vector<std::wstring>;

class GridTest : public testing::Test {
  protected:
    GridTest() {
        parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, 600, 400}, nullptr, 0);
        grid.CreateEx(0, GRID_WINDOW_CLASS, L"", WS_CHILD | WS_VISIBLE, RECT{0, 0, 500, 300}, parent.m_hWnd,
                      110);
        grid.Initialize();
        SetActiveWindow(parent.m_hWnd);
        grid.SetFocus();
    }

    // Column headers in row 0, and in each cell its row and column, such as "3:2".
    void fill(uint32_t rows, uint32_t cols) {
        grid.SetRowCount(rows);
        grid.SetColCount(cols);
        for (uint32_t row = 0; row <= rows; ++row)
            for (uint32_t col = 0; col <= cols; ++col)
                grid.SetValueRange(CGXRange(row, col), std::to_wstring(row) + L':' + std::to_wstring(col));
        pump();
        grid.events.clear();
    }

    GridCellLook look(uint32_t row, uint32_t col) {
        GridCellLook cell;
        cell.at = {row, col};
        EXPECT_TRUE(ask(GridQuestion::Cell, &cell));
        return cell;
    }
    bool ask(GridQuestion question, void* record) {
        return grid.SendMessage(RegisterWindowMessageW(GRID_QUERY_MESSAGE), static_cast<WPARAM>(question),
                                reinterpret_cast<LPARAM>(record)) != 0;
    }
    LPARAM middle(uint32_t row, uint32_t col) {
        const PixelRect rect = look(row, col).rect;
        EXPECT_GT(rect.width(), 0) << row << ':' << col << " isn't in view";
        return MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    }

    SCROLLINFO scrollBar(int which) {
        SCROLLINFO bar{};
        bar.cbSize = sizeof bar;
        bar.fMask = SIF_ALL;
        pump();
        GetScrollInfo(grid.m_hWnd, which, &bar);
        return bar;
    }

    void press(uint32_t row, uint32_t col, WPARAM keys = 0) {
        const LPARAM at = middle(row, col);
        grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | keys, at);
        grid.SendMessage(WM_LBUTTONUP, keys, at);
    }
    // From one place to another, past the places between them.
    void drag(LPARAM from, std::initializer_list<LPARAM> past) {
        grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, from);
        for (const LPARAM at : past) grid.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, at);
        grid.SendMessage(WM_LBUTTONUP, 0, std::data(past)[past.size() - 1]);
    }
    void doubleClick(uint32_t row, uint32_t col) {
        press(row, col);
        pressTwice(middle(row, col));
    }
    // The second press of a double click.
    void pressTwice(LPARAM at) {
        grid.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, at);
        grid.SendMessage(WM_LBUTTONUP, 0, at);
    }

    // Given to the window that has the focus; `held`: keys that are down meanwhile.
    static void key(WPARAM code, std::initializer_list<int> held = {}) {
        BYTE state[256] = {};
        for (const int other : held) state[other] = 0x80;
        SetKeyboardState(state);
        ::SendMessageW(GetFocus(), WM_KEYDOWN, code, 1);
        for (const int other : held) state[other] = 0;
        SetKeyboardState(state);
    }
    static void type(const std::wstring& text) {
        for (const wchar_t c : text) ::SendMessageW(GetFocus(), WM_CHAR, c, 1);
    }

    GridWindowClass windowClass;
    CWnd parent;
    NotingGrid grid;
};
