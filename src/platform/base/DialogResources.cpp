#include "src/platform/base/DialogResources.h"

#include "src/platform/base/KeyListText.h"

bool isWalkedId(int id) {
    return id == OK_CONTROL_ID || id == CANCEL_CONTROL_ID || (id >= FIRST_WALKED_ID && id <= LAST_WALKED_ID);
}

bool isReportControl(std::wstring_view dialog, int id) {
    constexpr int FIRST_BUTTON_ID = 3, LAST_BUTTON_ID = 7;
    return dialog == REPORT_DIALOG &&
           (id == REPORT_TAB_ID || (id >= FIRST_BUTTON_ID && id <= LAST_BUTTON_ID));
}
