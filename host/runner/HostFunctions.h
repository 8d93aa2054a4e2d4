// The host's own Lisp functions beside those for sessions.
#pragma once

#include "host/lisp/Interpreter.h"

// Defines (host_open_document), (host_close_document), (host_load_plugin path), (host_unload_plugin [name]),
// (host_resources), (exit [status]) and the command c:wex_loadlisp.
void defineHostFunctions(lisp::Interpreter& lisp);
