#include "host/runner/TempFolder.h"

#include <string>

namespace fs = std::filesystem;

namespace {

constexpr std::wstring_view PREFIX = L"wexhost-";

// A mutex of this name lives as long as the host whose folder has the name, however that host ends.
std::wstring claimOf(const std::wstring& folder) { return L"Global\\" + folder; }

bool isAbandoned(const std::wstring& folder) {
    const HANDLE claim = OpenMutexW(SYNCHRONIZE, FALSE, claimOf(folder).c_str());
    const bool isGone = !claim && GetLastError() == ERROR_FILE_NOT_FOUND;
    if (claim) CloseHandle(claim);
    return isGone;
}

void removeAbandonedFolders(const fs::path& parent) {
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(parent, ignored)) {
        const std::wstring name = entry.path().filename().wstring();
        if (name.starts_with(PREFIX) && isAbandoned(name)) fs::remove_all(entry.path(), ignored);
    }
}

void setTemporaryFolder(const fs::path& path) {
    SetEnvironmentVariableW(L"TMP", path.c_str());
    SetEnvironmentVariableW(L"TEMP", path.c_str());
}

}  // namespace

TempFolder::TempFolder() {
    const fs::path parent = fs::temp_directory_path();
    removeAbandonedFolders(parent);
    const std::wstring name = std::wstring(PREFIX) + std::to_wstring(GetCurrentProcessId());
    // Claimed first: another host may look at the folder as soon as it is there.
    m_claim = CreateMutexW(nullptr, FALSE, claimOf(name).c_str());
    m_path = parent / name;
    std::error_code error;
    fs::create_directory(m_path, error);
    if (error) {
        CloseHandle(m_claim);
        throw fs::filesystem_error("no temporary folder of its own", m_path, error);
    }
    setTemporaryFolder(m_path);
}

TempFolder::~TempFolder() {
    setTemporaryFolder(m_path.parent_path());
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
    CloseHandle(m_claim);
}
