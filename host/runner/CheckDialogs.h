// Compares key lists with dialog templates.
#pragma once

#include <span>
#include <string>

// Reads the modules, or with none given the plug-in, its resource module and its add-ons, and prints a line
// for each mismatch. The exit status: 0 for none, 1 for some.
int checkDialogs(std::span<const std::wstring> modules);
