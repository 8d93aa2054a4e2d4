// A report as a PDF file, by the platform's printing into a file.
//
// Windows has a printer that writes PDF files. Wine's printers all write PostScript into files, which
// Ghostscript then makes a PDF of.
#pragma once

#include <string>

#include "src/report/PrintJob.h"

class PdfJob : public PrintJob {
  public:
    // Asks for the file.
    bool choose(HWND owner) override;
    HDC createDC() override;
    int startDoc(HDC dc, const wchar_t* name) override;

    // To be called when the document has ended. False where there is no file of it.
    bool finish() const;

    const std::wstring& path() const { return m_path; }

  private:
    // What the printer writes.
    std::wstring printed() const;

    std::wstring m_path;
};
