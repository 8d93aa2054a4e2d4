#include "src/shell/ResourceFolder.h"

std::wstring folderOf(std::wstring_view modulePath) {
    const size_t cut = modulePath.rfind(L'\\');
    // A backslash at the very start leaves an empty folder, which stays empty.
    if (cut == std::wstring_view::npos || cut == 0) return {};
    return std::wstring(modulePath.substr(0, cut)) + L'\\';
}
