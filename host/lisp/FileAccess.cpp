#include "host/lisp/FileAccess.h"

#include "host/lisp/Text.h"

namespace lisp {

#ifdef _WIN32
std::filesystem::path toPath(std::u16string_view text) { return std::wstring(text.begin(), text.end()); }

std::u16string fromPath(const std::filesystem::path& path) {
    std::wstring name = path.generic_wstring();
    return {name.begin(), name.end()};
}
#else
std::filesystem::path toPath(std::u16string_view text) { return toUtf8(text); }
std::u16string fromPath(const std::filesystem::path& path) { return fromUtf8(path.generic_string()); }
#endif

std::filesystem::path FileAccess::resolve(std::u16string_view name) const { return toPath(name); }

std::optional<std::filesystem::path> FileAccess::find(std::u16string_view name) const {
    std::filesystem::path path = resolve(name);
    std::error_code fault;
    if (!std::filesystem::is_regular_file(path, fault)) return std::nullopt;
    return path;
}

}  // namespace lisp
