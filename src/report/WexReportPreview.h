// A report's page on a sheet of paper with a shadow, scrolled by a bar beside it, and printed on a page of a
// printer.
#pragma once

#include "src/platform/base/PixelRect.h"
#include "src/platform/mfc/Controls.h"
#include "src/platform/mfc/Drawing.h"
#include "src/report/PrintJob.h"
#include "src/report/ReportTable.h"

class WexReportPreview : public CStatic {
    DECLARE_DYNAMIC(WexReportPreview)

  public:
    // Makes the child control with the id 101. `rect` is in the parent's client pixels.
    virtual bool Create(const RECT& rect, HWND parent);

    // Prints the table on one page. False where that was cancelled, and where the document couldn't begin,
    // which a message then told.
    bool Print(PrintJob& job);

    int32_t m_printing = 0;             // cleared by a paint
    CScrollBar* m_scrollBar = nullptr;  // the tab's
    bool m_scrollRangeSet = false;
    int32_t m_pageLines = 0;  // the page's height in scroll steps; kept, and not read
    UniqueFont m_fontNormal;  // made for the device that is drawn on
    UniqueFont m_fontBold;
    int32_t m_fixedFive = 5;  // kept, and not read
    ReportRows m_rows = sampleReport();

  protected:
    const MessageMap& messageMap() const override;

  private:
    void onPaint();
    void setScrollRange(const PixelRect& client);
    void DrawTable(HDC dc, const PixelRect& page, int offset);
    void deleteFonts();
};
