#include "src/platform/base/AddOns.h"

#include <algorithm>

#include "src/platform/base/Text.h"

std::vector<std::filesystem::path> addOnPaths(const std::filesystem::path& pluginFolder) {
    std::vector<std::filesystem::path> paths;
    std::error_code error;
    std::filesystem::directory_iterator entry(pluginFolder / "WexDialogs.d", error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
        if (equalIgnoringCase(entry->path().extension().wstring(), L".dll")) paths.push_back(entry->path());
    std::sort(paths.begin(), paths.end(), [](const auto& a, const auto& b) {
        return toLower(a.filename().wstring()) < toLower(b.filename().wstring());
    });
    return paths;
}
