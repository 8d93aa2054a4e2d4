// The selected entries of a list box as $value tells them. Portable.
#pragma once

#include <span>

#include "src/platform/base/CString.h"

// The indexes in decimal, joined by one blank; empty for none.
CString selectionText(std::span<const int> indexes);
