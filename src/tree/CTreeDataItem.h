// What a tree keeps of an item beside what the control keeps: reached through the item's own parameter.
#pragma once

#include <cstdint>

#include "src/platform/base/CObject.h"

struct CTreeDataItem : CObject {
    int32_t m_alternateImage = -1;  // trades places with the item's image whenever the item opens or closes
    int32_t m_data = 0;             // Lisp's own
};
