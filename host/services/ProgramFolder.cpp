#include "host/services/ProgramFolder.h"

#include <windows.h>

#include <string>

std::filesystem::path programFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return std::filesystem::path(path).parent_path();
}
