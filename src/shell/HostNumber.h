// Numbers as they come from Lisp. Portable.
#pragma once

#include <cstdint>

// A real as an integer: truncated toward zero; -2147483648 beyond 32 bits.
inline int32_t truncated(double number) {
    constexpr double beyond = 2147483648.0;
    return number > -beyond - 1 && number < beyond ? static_cast<int32_t>(number) : INT32_MIN;
}
