// Runs a program anew when it is saved, or a file that it found, the plug-in or an add-on.
#pragma once

#include <span>
#include <string>

#include "host/runner/Options.h"

// Until Ctrl+C. `arguments` are those of this process, without its name; each run is a process of its own. A
// text that can't be read is told, and leaves the run before as it is. Gives the exit status.
int watchProgram(const Options& options, std::span<const std::wstring> arguments);
