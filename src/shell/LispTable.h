// A table of Lisp functions, and its registration with the host.
#pragma once

#include <span>

#include "src/platform/host/HostLisp.h"

struct WexLispFunctionRow {
    const wchar_t* name;  // null: loaded from nameStringId
    HostLispFunction handler;
    int32_t registerHandler = 1;  // 1: bound with hostRegFunc
    int32_t nameStringId = -1;
};

// Null slots are skipped and take no code. A row's function code is its position among the others, counted
// from 0.
using LispTable = std::span<const WexLispFunctionRow* const>;

// Makes the functions known in the current document under their codes.
void defineFunctions(LispTable table);
// Takes them back out of the current document.
void undefineFunctions(LispTable table);
// Calls the function of that code; does nothing where there is none.
void invokeFunction(LispTable table, int code);
// The row of that code; null where there is none.
const WexLispFunctionRow* rowOfCode(LispTable table, int code);
