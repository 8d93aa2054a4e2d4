// The Lisp functions of a test plug-in: a table in the order of their codes.
#pragma once

#include "src/platform/host/HostLisp.h"
#include "src/platform/host/HostPlugin.h"

struct LispRow {
    const wchar_t* name;
    HostLispFunction handler;
};

// A handler whose work sets the result.
template <void (*work)()>
int32_t entry() {
    work();
    return RESULT_SET;
}

// For each message to the plug-in: documents get the functions when they open, until they close.
template <int COUNT>
void serve(const LispRow (&rows)[COUNT], int32_t message) {
    for (int code = 0; code < COUNT; ++code) {
        if (message == PLUGIN_LOAD_DOCUMENT) {
            hostDefun(rows[code].name, code);
            hostRegFunc(rows[code].handler, code);
        }
        if (message == PLUGIN_UNLOAD_DOCUMENT) hostUndef(rows[code].name, code);
    }
}
