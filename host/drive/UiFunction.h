// A row in the tables of the functions that sessions call.
#pragma once

#include "host/lisp/Call.h"

struct UiFunction {
    const char16_t* name;
    lisp::NativeFunction function;
    int minimum;  // of arguments
    int maximum;
};
