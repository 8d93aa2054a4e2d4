// The platform's print dialog.
#pragma once

#include <windows.h>

#include <commdlg.h>

class CPrintDialog {
  public:
    // PD_ flags.
    explicit CPrintDialog(DWORD flags) : m_flags(flags) {}
    ~CPrintDialog();
    CPrintDialog(const CPrintDialog&) = delete;
    CPrintDialog& operator=(const CPrintDialog&) = delete;

    // Lets the person choose a printer. False where the dialog was cancelled, and without any printer, of
    // which the platform tells.
    bool DoModal(HWND owner);
    // A device context of the chosen printer with the chosen settings, the caller's. Null where it can't be
    // made, as for a printer that is gone.
    HDC CreatePrinterDC() const;

  private:
    DWORD m_flags;
    HGLOBAL m_names = nullptr;     // a DEVNAMES
    HGLOBAL m_settings = nullptr;  // a DEVMODE
};
