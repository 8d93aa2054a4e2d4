// Which window a new dialog or message box belongs to.
#pragma once

#include "src/platform/mfc/CWnd.h"

// The host's active dialog if one of its own is in front; otherwise the newest of our dialogs that can be a
// parent, or the host's main frame.
CWnd* findParentWindow();
