// Where the program is, for a report of a process that ends before it is done.
#pragma once

#include <windows.h>

#include <string>

// The open dialogs of that thread, the step of the session, the action that runs and the last call of Lisp: a
// line for each, each behind a line end. It sends no message and takes no lock, since the thread may hang.
std::wstring whereItStood(DWORD thread);
