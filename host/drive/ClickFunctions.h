// The ui_ functions that use the mouse on tiles and their entries.
#pragma once

#include <span>

#include "host/drive/UiFunction.h"

std::span<const UiFunction> clickFunctions();
