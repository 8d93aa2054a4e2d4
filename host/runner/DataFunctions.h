// The Lisp functions that work a database, and the database that the command line names.
#pragma once

#include <string_view>

#include "host/lisp/Interpreter.h"

void defineDataFunctions(lisp::Interpreter& lisp);

// Opens what `choice` names, in the place of what is open. False where that fails, which is told on the
// command line.
bool openData(std::wstring_view choice);

// Rolls back a transaction that is still open and tells so; `program` left it.
void rollBackLeftover(std::wstring_view program);

void closeData();
