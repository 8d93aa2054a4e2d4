// Where the resource module is looked for. Portable.
#pragma once

#include <string>
#include <string_view>

constexpr std::wstring_view RESOURCE_MODULE_NAME = L"WexDialogsRes.dll";

// The folder of a module's full path with one backslash at its end; empty where the path has no backslash.
std::wstring folderOf(std::wstring_view modulePath);
