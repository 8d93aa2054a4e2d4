// Reads programs without running them, and prints what is wrong with them.
#pragma once

#include <span>
#include <string>

#include "host/check/Program.h"

// The files are one program. The host must have been started. The exit status: 1 where there is a warning or
// a file that can't be read, otherwise 0.
int checkFiles(std::span<const std::wstring> files);

// Finds files as the host's Lisp does. A file that is one of `names` comes under that name.
check::FindSource findSources(std::span<const std::wstring> names);
