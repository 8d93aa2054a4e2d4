// How Lisp file names become paths. The default takes them as the platform does, relative to the working
// folder.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace lisp {

// Text and path as they are, unpaired surrogates too, which the library's own conversion would throw at.
// Paths come back with `/` between their parts.
std::filesystem::path toPath(std::u16string_view text);
std::u16string fromPath(const std::filesystem::path& path);

class FileAccess {
  public:
    virtual ~FileAccess() = default;

    // The path that `name` stands for, whether it exists or not. May throw an Error to refuse it.
    virtual std::filesystem::path resolve(std::u16string_view name) const;

    // The file that `load` and `findfile` mean by `name`, or nothing. The default looks at resolve(name)
    // only.
    virtual std::optional<std::filesystem::path> find(std::u16string_view name) const;
};

}  // namespace lisp
