// The command line of a process to be started.
#pragma once

#include <string>

// One argument in quotes, as the C run-time of the started program takes it apart again.
std::wstring quotedArgument(const std::wstring& argument);
