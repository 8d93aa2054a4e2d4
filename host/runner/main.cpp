#include "host/runner/Run.h"

int wmain(int count, wchar_t** arguments) { return hostRun(count, arguments); }
