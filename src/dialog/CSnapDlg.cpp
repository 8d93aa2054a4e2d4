#include "src/dialog/CSnapDlg.h"

IMPLEMENT_DYNAMIC(CSnapDlg, CDialog)
