// The grid library: tables filled, pages of a million rows scrolled and painted, a large paste. Pages are
// measured beside a window that draws the same texts by hand.
//
//     grid_bench [REPETITIONS]
#include <windows.h>

#include <psapi.h>

#include <string>

#include "bench/dialog/Measure.h"
#include "src/platform/gridlib/CGXGridWnd.h"
#include "src/platform/gridlib/GridClipboard.h"
#include "src/platform/gridlib/GridWindowClass.h"
#include "src/platform/mfc/ModuleState.h"

namespace {

constexpr uint32_t ROWS = 100'000, COLS = 10;
constexpr uint32_t MILLION = 1'000'000, WIDE = 20;
constexpr int PAGES = 60;
constexpr SIZE WINDOW{900, 600}, SCREEN{1280, 1024};

std::wstring numberText(uint32_t row, uint32_t col) {
    return std::to_wstring(row) + L',' + std::to_wstring(col);
}

void settle() {
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) DispatchMessageW(&message);
}

class Grid : public CGXGridWnd {
  public:
    explicit Grid(SIZE size) {
        m_parent.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, size.cx, size.cy}, nullptr, 0);
        CreateEx(0, GRID_WINDOW_CLASS, L"", WS_CHILD | WS_VISIBLE, RECT{0, 0, size.cx, size.cy},
                 m_parent.m_hWnd, 1);
        Initialize();
        settle();
    }

    // Cells to read that wrap and merge, as a program's rows have them.
    void fill(uint32_t rows, uint32_t cols) {
        SetRowCount(rows);
        SetColCount(cols);
        SetMergeCellsMode(1, true);
        CGXStyle style =
            CGXStyle().SetControl(CONTROL_STATIC).SetWrapText(true).SetInterior(GetSysColor(COLOR_WINDOW));
        style.SetMergeCell(MERGE_ALONG_ROW | MERGE_DOWN_COLUMN);
        for (uint32_t row = 1; row <= rows; ++row)
            for (uint32_t col = 0; col <= cols; ++col)
                SetStyleRange(CGXRange(row, col), style.SetValue(numberText(row, row % 5 ? col : 0)));
    }

  private:
    CWnd m_parent;
};

// Paints rows of equal height and columns of equal width, whose texts it makes as it goes.
class BareTable {
  public:
    explicit BareTable(SIZE size) {
        WNDCLASSW type{};
        type.lpfnWndProc = procedure;
        type.lpszClassName = L"BareTable";
        type.hInstance = GetModuleHandleW(nullptr);
        RegisterClassW(&type);
        m_window = CreateWindowExW(0, L"BareTable", L"", WS_POPUP | WS_VISIBLE, 0, 0, size.cx, size.cy,
                                   nullptr, nullptr, type.hInstance, nullptr);
        SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    ~BareTable() { DestroyWindow(m_window); }
    BareTable(const BareTable&) = delete;
    BareTable& operator=(const BareTable&) = delete;

    void show(uint32_t first) {
        m_first = first;
        InvalidateRect(m_window, nullptr, FALSE);
        UpdateWindow(m_window);
    }

  private:
    static constexpr int HEIGHT = 17, WIDTH = 72;

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
        auto* table = reinterpret_cast<BareTable*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (message != WM_PAINT || !table) return DefWindowProcW(window, message, w, l);
        table->paint();
        return 0;
    }

    void paint() {
        RECT client;
        GetClientRect(m_window, &client);
        PAINTSTRUCT paint;
        const HDC dc = BeginPaint(m_window, &paint);
        const MemoryDC memory(dc, client.right, client.bottom);
        SelectObject(memory, GetStockObject(DEFAULT_GUI_FONT));
        SetBkColor(memory, RGB(208, 212, 218));
        ExtTextOutW(memory, 0, 0, ETO_OPAQUE, &client, nullptr, 0, nullptr);
        SetBkColor(memory, RGB(255, 255, 255));
        for (int row = 0; row * HEIGHT < client.bottom; ++row)
            for (int col = 0; col * WIDTH < client.right; ++col) {
                const std::wstring text =
                    numberText(m_first + static_cast<uint32_t>(row), static_cast<uint32_t>(col));
                const RECT cell{col * WIDTH, row * HEIGHT, col * WIDTH + WIDTH - 1,
                                row * HEIGHT + HEIGHT - 1};
                ExtTextOutW(memory, cell.left + 3, cell.top + 1, ETO_OPAQUE | ETO_CLIPPED, &cell, text.data(),
                            static_cast<UINT>(text.size()), nullptr);
            }
        memory.copyTo(dc, 0, 0);
        EndPaint(m_window, &paint);
    }

    HWND m_window;
    uint32_t m_first = 0;
};

size_t bytesInUse() {
    PROCESS_MEMORY_COUNTERS memory{};
    GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    return memory.WorkingSetSize;
}

// Fills with texts of that length. The first round tells the memory that it took, as later ones find memory
// that was used before.
void measureFill(const char* key, size_t letters, int repetitions) {
    Times times;
    for (int i = 0; i < repetitions; ++i) {
        CGXGridCore grid;
        std::wstring text(letters, L'x');
        const size_t before = bytesInUse();
        times.add(timeOf([&] {
            grid.SetRowCount(ROWS);
            grid.SetColCount(COLS);
            for (uint32_t row = 1; row <= ROWS; ++row)
                for (uint32_t col = 1; col <= COLS; ++col) {
                    text[row % letters] = static_cast<wchar_t>(L'a' + col);
                    grid.SetStyleRange(CGXRange(row, col), CGXStyle().SetValue(text));
                }
        }));
        if (i > 0) continue;
        const double each = static_cast<double>(bytesInUse() - before) / (ROWS * COLS);
        std::printf("%s_bytes_a_cell  %.1f, beside the text %.1f\n", key, each,
                    each - static_cast<double>(letters * sizeof(wchar_t)));
    }
    times.print(key);
}

void measurePages(const char* key, SIZE size) {
    Grid grid(size);
    grid.fill(PAGES * 100, WIDE);
    grid.SetRowCount(MILLION);
    BareTable bare(size);
    Versus times;
    for (uint32_t page = 0; page < PAGES; ++page) {
        times.ours.add(timeOf([&] {
            grid.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
            ::UpdateWindow(grid.m_hWnd);
        }));
        settle();
        times.bare.add(timeOf([&] { bare.show(page * 40); }));
    }
    times.print(key);
}

void measurePaste() {
    CellRows rows;
    for (uint32_t row = 0; row < 10'000; ++row) {
        CStringArray& cells = rows.emplace_back();
        for (uint32_t col = 0; col < 5; ++col) cells.emplace_back(L"new " + numberText(row, col));
    }
    Times times;
    for (int i = 0; i < 5; ++i) {
        Grid grid(WINDOW);
        grid.SetRowCount(10'000);
        grid.SetColCount(5);
        ::SetFocus(grid.m_hWnd);
        grid.SetCurrentCell(1, 1);
        settle();
        putOnClipboard(grid.m_hWnd, rows);
        BYTE keys[256] = {};
        keys[VK_CONTROL] = 0x80;
        SetKeyboardState(keys);
        times.add(timeOf([&] {
            grid.SendMessage(WM_KEYDOWN, 'V', 1);
            settle();
        }));
        keys[VK_CONTROL] = 0;
        SetKeyboardState(keys);
        if (grid.GetValueRowCol(10'000, 5) != L"new 9999,4") std::printf("grid_paste: not pasted\n");
    }
    times.print("grid_paste_10000x5");
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    const int repetitions = count > 1 ? _wtoi(arguments[1]) : 7;
    const GridWindowClass windowClass;
    measureFill("grid_fill_100000x10_of_20_letters", 20, repetitions);
    measureFill("grid_fill_100000x10_of_5_letters", 5, repetitions);
    Times open;
    for (int i = 0; i < repetitions; ++i) {
        Grid grid(WINDOW);
        open.add(timeOf([&] {
            grid.SetRowCount(MILLION);
            grid.SetColCount(WIDE);
            settle();
        }));
    }
    open.print("grid_million_rows_shown");
    measurePages("grid_page_of_a_million_rows", WINDOW);
    measurePages("grid_page_of_a_full_screen", SCREEN);
    measurePaste();
    return 0;
}
