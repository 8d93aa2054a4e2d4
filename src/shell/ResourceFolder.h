// Where the resource module is looked for. Portable.
#pragma once

#include <string>
#include <string_view>

// The folder of a module's full path with one backslash at its end; empty where the path has no backslash.
std::wstring folderOf(std::wstring_view modulePath);
