// What wexhost does, for its thin main.
#pragma once

#include "src/platform/host/HostApi.h"

// Runs the host with the command line of `main`, and gives the exit status.
HOST_API int hostRun(int count, wchar_t** arguments);
