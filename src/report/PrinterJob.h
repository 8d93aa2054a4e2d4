// A report on a printer of the platform's print dialog.
#pragma once

#include "src/platform/mfc/CPrintDialog.h"
#include "src/report/PrintJob.h"

class PrinterJob : public PrintJob {
  public:
    bool choose(HWND owner) override { return m_dialog.DoModal(owner); }
    HDC createDC() override { return m_dialog.CreatePrinterDC(); }

  private:
    CPrintDialog m_dialog{PD_NOSELECTION | PD_NOPAGENUMS | PD_USEDEVMODECOPIESANDCOLLATE |
                          PD_HIDEPRINTTOFILE};
};
