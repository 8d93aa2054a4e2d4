// The functions that work scroll bars and the mouse's wheel.
#pragma once

#include <span>

#include "host/drive/UiFunction.h"

std::span<const UiFunction> scrollFunctions();
