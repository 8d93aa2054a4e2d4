#include "host/services/ProgramFolder.h"

#include <windows.h>

#include <string>

// A build lies so many folders below its sources.
constexpr int MOST_LEVELS = 3;

std::filesystem::path programFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return std::filesystem::path(path).parent_path();
}

std::filesystem::path findDelivered(const std::filesystem::path& file) {
    std::error_code ignored;
    std::filesystem::path folder = programFolder();
    for (int level = 0; level <= MOST_LEVELS; ++level, folder = folder.parent_path())
        if (std::filesystem::is_regular_file(folder / file, ignored)) return folder / file;
    return {};
}
