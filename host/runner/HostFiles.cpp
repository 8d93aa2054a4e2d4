#include "host/runner/HostFiles.h"

#include <windows.h>

#include <algorithm>

#include "host/services/Texts.h"
#include "host/services/Wine.h"

namespace fs = std::filesystem;

namespace {

constexpr wchar_t WHOLE_FILE_SYSTEM[] = L"Z:";

}  // namespace

fs::path systemPath(const std::wstring& path) {
    const bool isUnixPath = !path.empty() && path[0] == L'/';
    return isUnixPath && isUnderWine() ? fs::path(WHOLE_FILE_SYSTEM + path) : fs::path(path);
}

void HostFiles::addFolder(const fs::path& folder) {
    if (std::find(m_folders.begin(), m_folders.end(), folder) == m_folders.end()) m_folders.push_back(folder);
}

fs::path HostFiles::resolve(std::u16string_view name) const { return systemPath(wideText(name)); }

std::optional<fs::path> HostFiles::find(std::u16string_view name) const {
    std::vector<fs::path> names = {resolve(name)};
    if (!names[0].has_extension()) names.push_back(names[0].wstring() + L".lsp");
    std::vector<fs::path> folders = {L""};
    if (names[0].is_relative()) folders.insert(folders.end(), m_folders.begin(), m_folders.end());
    std::error_code ignored;
    for (const fs::path& folder : folders) {
        for (const fs::path& file : names) {
            if (!fs::is_regular_file(folder / file, ignored)) continue;
            if (m_listener) m_listener(folder / file);
            return folder / file;
        }
    }
    return std::nullopt;
}
