// Tells which dialogs there are and what they hold.
#pragma once

#include <span>
#include <string>
#include <vector>

// Prints the names of all dialogs in place with their titles, or the tiles of those named: key, id, kind,
// text. The exit status: 1 where a name isn't known, otherwise 0.
int showDialogs(std::span<const std::wstring> names);

// The names of the dialogs that are installed and have a template.
std::vector<std::wstring> dialogNames();
