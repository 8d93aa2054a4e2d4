#include "src/report/WexReportPreview.h"

#include <ctime>

#include "src/platform/mfc/CWinApp.h"
#include "src/report/CMemDC.h"
#include "src/report/GdiReportSurface.h"
#include "src/report/ReportDate.h"
#include "src/report/SheetLayout.h"

IMPLEMENT_DYNAMIC(WexReportPreview, CStatic)

namespace {

constexpr UINT PREVIEW_ID = 101;
constexpr wchar_t DOCUMENT[] = L"Krvl Electrical Report Table";
constexpr int START_DOC_FAILED = -1;
constexpr COLORREF BLACK = RGB(0, 0, 0);

void fill(HDC dc, const PixelRect& rect, COLORREF color) {
    const RECT area{rect.left, rect.top, rect.right, rect.bottom};
    SetBkColor(dc, color);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
}

struct DeleteDeviceContext {
    void operator()(HDC dc) const { ::DeleteDC(dc); }
};

}  // namespace

const MessageMap& WexReportPreview::messageMap() const {
    static const MessageMap map(CStatic::messageMap(), {on<WM_PAINT, &WexReportPreview::onPaint>()});
    return map;
}

bool WexReportPreview::Create(const RECT& rect, HWND parent) {
    if (!CreateEx(0, L"Static", L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, rect, parent, PREVIEW_ID))
        return false;
    ModifyStyleEx(0, WS_EX_STATICEDGE);
    return true;
}

void WexReportPreview::onPaint() {
    const PaintDC paint(m_hWnd);
    const RECT area = GetClientRect();
    const CMemDC dc(paint, area);
    m_printing = 0;
    const PixelRect client{area.left, area.top, area.right, area.bottom};
    const int position = m_scrollBar ? m_scrollBar->GetScrollPos() : 0;
    const int offset = position * PIXELS_PER_SCROLL_STEP;
    const SheetLayout sheet(client, offset);
    setScrollRange(client);

    fill(dc, sheet.ground, GetSysColor(COLOR_APPWORKSPACE));
    const UniquePen pen(CreatePen(PS_SOLID, 1, BLACK));
    const SelectedObject selected(dc, pen.get());
    Rectangle(dc, sheet.paper.left, sheet.paper.top, sheet.paper.right, sheet.paper.bottom);
    fill(dc, sheet.rightShadow, BLACK);
    fill(dc, sheet.bottomShadow, BLACK);
    DrawTable(dc, sheet.page, offset);
}

// kept: once, by the size at the first paint. A change of the size leaves the range.
void WexReportPreview::setScrollRange(const PixelRect& client) {
    if (!m_scrollBar || m_scrollRangeSet) return;
    m_scrollBar->SetScrollRange(0, reportScrollRange(client));
    m_scrollRangeSet = true;
    m_pageLines = static_cast<int32_t>((reportPageHeight(client.width()) - 8) * 0.1);
}

void WexReportPreview::DrawTable(HDC dc, const PixelRect& page, int offset) {
    const int dpiY = GetDeviceCaps(dc, LOGPIXELSY);
    if (!m_fontNormal) m_fontNormal = makeReportFont(dpiY, ReportFont::normal);
    if (!m_fontBold) m_fontBold = makeReportFont(dpiY, ReportFont::bold);
    GdiReportSurface surface(dc, m_fontNormal.get(), m_fontBold.get());
    drawReportTable(surface, m_rows, page, offset);
    drawReportFooter(surface, page, offset, reportDate(std::time(nullptr)));
}

void WexReportPreview::deleteFonts() {
    m_fontNormal.reset();
    m_fontBold.reset();
}

bool WexReportPreview::Print(PrintJob& job) {
    if (!job.choose(GetAncestor(m_hWnd, GA_ROOT))) return false;
    std::unique_ptr<std::remove_pointer_t<HDC>, DeleteDeviceContext> printer(job.createDC());
    const HDC dc = printer.get();
    if (job.startDoc(dc, DOCUMENT) == START_DOC_FAILED) {
        AfxMessageBox(L"Printing error occurred. Unable to find printer.");
        return false;
    }
    SetMapMode(dc, MM_TEXT);
    job.startPage(dc);
    m_printing = 1;
    // Those of the screen don't go to the printer, nor its own to the screen, which may be painted while the
    // page ends.
    deleteFonts();
    {
        const struct OwnFonts {
            WexReportPreview& preview;
            ~OwnFonts() { preview.deleteFonts(); }
        } printersFonts{*this};
        DrawTable(dc, {0, 0, GetDeviceCaps(dc, HORZRES), GetDeviceCaps(dc, VERTRES)}, 0);
    }
    job.endPage(dc);
    job.endDoc(dc);
    printer.reset();
    m_printing = 0;
    return true;
}
