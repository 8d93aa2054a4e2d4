// A report's page on the screen and on a printer, beside the same page drawn by hand.
#include <windows.h>

#include <winspool.h>

#include <string>

#include "bench/dialog/Measure.h"
#include "src/report/GdiReportSurface.h"
#include "src/report/SheetLayout.h"
#include "src/report/WexReportPreview.h"

namespace {

constexpr int REPEATS = 40;

HFONT bareFont(HDC dc, int weight) {
    return CreateFontW(-MulDiv(8, GetDeviceCaps(dc, LOGPIXELSY), 72), 0, 0, 0, weight, 0, 0, 0,
                       DEFAULT_CHARSET, 0, 0, 0, 0, L"Arial");
}

// The page as somebody would draw it who has this one table only.
void barePage(HDC dc, const ReportRows& rows, RECT page, int offset, HFONT normal, HFONT bold) {
    const int dpi = GetDeviceCaps(dc, LOGPIXELSY);
    const int left = page.left + dpi / 2, top = page.top + dpi / 2 - offset;
    const int pad = dpi * 5 / 96, inset = dpi / 24;
    const HGDIOBJ former = SelectObject(dc, bold);
    SetBkColor(dc, RGB(255, 255, 255));
    int y = top, x = left;
    for (const auto& row : rows) {
        int height = 0;
        x = left;
        for (const auto& cell : row->m_cells) {
            const int right = x + static_cast<int>((page.right - page.left) * cell->m_width);
            RECT room{x + inset, y + inset, right - inset, y + 300};
            const CString& text = cell->m_text;
            height = std::max(
                height, DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &room, DT_WORDBREAK));
            x = right;
        }
        x = left;
        for (const auto& cell : row->m_cells) {
            const int right = x + static_cast<int>((page.right - page.left) * cell->m_width);
            MoveToEx(dc, right, y, nullptr);
            LineTo(dc, right, y + pad + height);
            LineTo(dc, x, y + pad + height);
            x = right;
        }
        y += pad + height;
        SelectObject(dc, normal);
    }
    MoveToEx(dc, x, top, nullptr);
    LineTo(dc, left, top);
    LineTo(dc, left, y);
    SelectObject(dc, former);
}

// What the bare window shows.
struct BareSheet {
    const ReportRows* rows;
    HFONT normal, bold;
    int offset = 0;
} g_sheet;

void bareSheet(HDC target, const RECT& client) {
    const int offset = g_sheet.offset;
    const HDC dc = CreateCompatibleDC(target);
    const HBITMAP bitmap = CreateCompatibleBitmap(target, client.right, client.bottom);
    const HGDIOBJ former = SelectObject(dc, bitmap);
    const int height = client.right * 22 / 15 + 4, right = client.right - 19;
    FillRect(dc, &client, GetSysColorBrush(COLOR_APPWORKSPACE));
    Rectangle(dc, 8, 4 - offset, right, height - offset);
    const auto black = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    const RECT beside{right, 12 - offset, right + 10, height - offset};
    const RECT below{16, height - offset, right + 10, height - offset + 10};
    FillRect(dc, &beside, black);
    FillRect(dc, &below, black);
    barePage(dc, *g_sheet.rows, {8, 4, right, height}, offset, g_sheet.normal, g_sheet.bold);
    BitBlt(target, 0, 0, client.right, client.bottom, dc, 0, 0, SRCCOPY);
    SelectObject(dc, former);
    DeleteObject(bitmap);
    DeleteDC(dc);
}

LRESULT CALLBACK bareProcedure(HWND window, UINT message, WPARAM w, LPARAM l) noexcept {
    if (message != WM_PAINT) return DefWindowProcW(window, message, w, l);
    PAINTSTRUCT paint;
    RECT client;
    GetClientRect(window, &client);
    bareSheet(BeginPaint(window, &paint), client);
    EndPaint(window, &paint);
    return 0;
}

HWND bareWindow(HWND parent) {
    WNDCLASSW kind = {};
    kind.lpfnWndProc = &bareProcedure;
    kind.lpszClassName = L"BareSheet";
    RegisterClassW(&kind);
    return CreateWindowExW(WS_EX_STATICEDGE, kind.lpszClassName, L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS,
                           0, 0, 590, 500, parent, nullptr, nullptr, nullptr);
}

void repaint(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void screenRows() {
    CWnd frame;
    frame.CreateEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, RECT{0, 0, 620, 500}, nullptr, 0);
    CScrollBar bar;
    bar.CreateEx(0, L"ScrollBar", L"", WS_CHILD | WS_VISIBLE | SBS_VERT, RECT{600, 0, 617, 500}, frame.m_hWnd,
                 102);
    WexReportPreview preview;
    preview.m_scrollBar = &bar;
    preview.Create({0, 0, 590, 500}, frame.m_hWnd);
    repaint(preview.m_hWnd);
    const HDC dc = GetDC(preview.m_hWnd);
    const HFONT normal = bareFont(dc, 400), bold = bareFont(dc, 700);
    ReleaseDC(preview.m_hWnd, dc);
    g_sheet = {&preview.m_rows, normal, bold};
    const HWND bare = bareWindow(frame.m_hWnd);
    Versus paint, step;
    const auto turnTo = [&](HWND front) {
        SetWindowPos(front, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        UpdateWindow(front);
    };
    for (int i = 0; i < REPEATS; ++i) {
        const int position = i % 2 ? 6 : 12;
        turnTo(preview.m_hWnd);
        paint.ours.add(timeOf([&] { repaint(preview.m_hWnd); }));
        step.ours.add(timeOf([&] {
            bar.SetScrollPos(position);
            repaint(preview.m_hWnd);
        }));
        turnTo(bare);
        paint.bare.add(timeOf([&] { repaint(bare); }));
        step.bare.add(timeOf([&] {
            g_sheet.offset = position * 10;
            SetScrollPos(bar.m_hWnd, SB_CTL, position + 3, TRUE);
            repaint(bare);
        }));
    }
    paint.print("report.paint");
    step.print("report.scroll_step");

    const ClientDC target(frame.m_hWnd);
    const MemoryDC picture(target, 800, 1100);
    ReportRows rows;
    for (int i = 0; i < 10000; ++i)
        rows.push_back(
            reportRow({L"Row " + std::to_wstring(i), L"Cell 2", L"Cell 3", L"Cell 4", L"Cell 5\ntest"},
                      {0.12, 0.12, 0.12, 0.12, 0.25}));
    Versus layout;
    for (int i = 0; i < 5; ++i) {
        layout.ours.add(timeOf([&] {
            GdiReportSurface surface(picture, normal, bold);
            drawReportTable(surface, rows, {0, 0, 800, 1100}, 0);
        }));
        layout.bare.add(timeOf([&] { barePage(picture, rows, {0, 0, 800, 1100}, 0, normal, bold); }));
    }
    layout.print("report.layout_10000_rows");
    DeleteObject(normal);
    DeleteObject(bold);
}

// The default printer, into a file.
class FilePrinter : public PrintJob {
  public:
    bool choose(HWND) override { return true; }
    HDC createDC() override {
        wchar_t name[256] = {};
        DWORD size = 256;
        return GetDefaultPrinterW(name, &size) ? CreateDCW(nullptr, name, nullptr, nullptr) : nullptr;
    }
    int startDoc(HDC dc, const wchar_t* name) override { return startDocInto(dc, name, L"C:\\bench.prn"); }
};

void printRow() {
    const HDC probe = FilePrinter().createDC();
    if (!probe) {
        std::printf("report.printed_page: no printer\n");
        return;
    }
    DeleteDC(probe);
    CWnd frame;
    frame.CreateEx(0, L"Static", L"", WS_POPUP, RECT{0, 0, 620, 500}, nullptr, 0);
    WexReportPreview preview;
    preview.Create({0, 0, 590, 500}, frame.m_hWnd);
    Versus page;
    for (int i = 0; i < 10; ++i) {
        FilePrinter printer;
        page.ours.add(timeOf([&] { preview.Print(printer); }));
        page.bare.add(timeOf([&] {
            const HDC dc = printer.createDC();
            printer.startDoc(dc, L"bare");
            StartPage(dc);
            const HFONT normal = bareFont(dc, 400), bold = bareFont(dc, 700);
            barePage(dc, preview.m_rows, {0, 0, GetDeviceCaps(dc, HORZRES), GetDeviceCaps(dc, VERTRES)}, 0,
                     normal, bold);
            EndPage(dc);
            EndDoc(dc);
            DeleteDC(dc);
            DeleteObject(normal);
            DeleteObject(bold);
        }));
    }
    page.print("report.printed_page");
    DeleteFileW(L"C:\\bench.prn");
}

}  // namespace

int main() {
    screenRows();
    printRow();
}
