// How Lisp finds files: Unix paths as they are under Wine, and the folders in which programs are looked for.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "host/lisp/FileAccess.h"

// The path that the system understands: under Wine one that begins with `/` lies on the drive that shows the
// whole file system; elsewhere it is as it was.
std::filesystem::path systemPath(const std::wstring& path);

class HostFiles : public lisp::FileAccess {
  public:
    // `folders`: where `find` looks behind the working folder, in this order.
    explicit HostFiles(std::vector<std::filesystem::path> folders) : m_folders(std::move(folders)) {}

    // Hears of each file that is found, as often as it is.
    void setListener(std::function<void(const std::filesystem::path& file)> listener) {
        m_listener = std::move(listener);
    }
    // Has `find` look there too, behind the others.
    void addFolder(const std::filesystem::path& folder);

    std::filesystem::path resolve(std::u16string_view name) const override;
    // Also under the name with `.lsp` behind it, where it has no extension.
    std::optional<std::filesystem::path> find(std::u16string_view name) const override;

  private:
    std::vector<std::filesystem::path> m_folders;
    std::function<void(const std::filesystem::path&)> m_listener;
};
