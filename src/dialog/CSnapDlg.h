// The base of all of the product's dialogs: a dialog with a place in the profile and a size grip.
#pragma once

#include "src/platform/mfc/CDialog.h"

class CSnapDlg : public CDialog {
    DECLARE_DYNAMIC(CSnapDlg)

  public:
    using CDialog::CDialog;

    // The section of the profile under which size and position are stored.
    CString m_registrySection;
    // Whether the dialog has a grip and its size is restored.
    bool m_resizable = false;
};
