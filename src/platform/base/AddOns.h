// Where the modules lie that bring further dialogs. Portable.
#pragma once

#include <filesystem>
#include <vector>

// The add-ons in place: the DLLs in the folder "WexDialogs.d" of the plug-in's folder, in the order in which
// dialogs are looked for in them.
std::vector<std::filesystem::path> addOnPaths(const std::filesystem::path& pluginFolder);
