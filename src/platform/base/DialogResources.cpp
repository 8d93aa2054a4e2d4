#include "src/platform/base/DialogResources.h"

#include "src/platform/base/KeyListText.h"

bool isWalkedId(int id) {
    return id == OK_CONTROL_ID || id == CANCEL_CONTROL_ID || (id >= FIRST_WALKED_ID && id <= LAST_WALKED_ID);
}
