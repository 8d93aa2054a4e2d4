#include "host/lisp/FileAccess.h"

namespace lisp {

std::filesystem::path FileAccess::resolve(std::u16string_view name) const { return {name}; }

std::optional<std::filesystem::path> FileAccess::find(std::u16string_view name) const {
    std::filesystem::path path = resolve(name);
    std::error_code fault;
    if (!std::filesystem::is_regular_file(path, fault)) return std::nullopt;
    return path;
}

}  // namespace lisp
