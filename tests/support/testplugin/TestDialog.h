// A plain dialog with a control of each kind, for sessions that no product function takes part in.
#pragma once

#include <windows.h>

// Runs it in front of `owner`, and gives 1 for OK and 2 for Cancel. A stubborn one stays whatever the person
// does.
int runTestDialog(HMODULE module, HWND owner, bool stubborn);

// As PLUGIN_FIND_WINDOW in HostPlugin.h asks; its name is "everything".
HWND findInTestDialog(const wchar_t* dialog, const wchar_t* key, int id);
