// Where a report is printed: on a printer that the person chooses, or into a file. The steps come in this
// order, and each may be left out from its end.
#pragma once

#include <windows.h>

class PrintJob {
  public:
    virtual ~PrintJob() = default;

    // Lets the person choose. False: nothing is to be printed.
    virtual bool choose(HWND owner) = 0;
    // A device context of what was chosen, the caller's; null where it can't be made.
    virtual HDC createDC() = 0;

    // As the platform's functions of these names, which take a null device context too.
    virtual int startDoc(HDC dc, const wchar_t* name) { return startDocInto(dc, name, nullptr); }
    virtual void startPage(HDC dc) { ::StartPage(dc); }
    virtual void endPage(HDC dc) { ::EndPage(dc); }
    virtual void endDoc(HDC dc) { ::EndDoc(dc); }

  protected:
    // `output` is the path of a file; null for the printer itself.
    static int startDocInto(HDC dc, const wchar_t* name, const wchar_t* output) {
        const DOCINFOW info{sizeof info, name, output, nullptr, 0};
        return ::StartDocW(dc, &info);
    }
};
