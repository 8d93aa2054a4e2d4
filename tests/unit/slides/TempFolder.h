// A folder that goes with its test.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <unistd.h>

#include "src/platform/base/CString.h"

class TempFolder {
  public:
    TempFolder() : m_path(std::filesystem::temp_directory_path() / ("slides-" + std::to_string(getpid()))) {
        std::filesystem::create_directory(m_path);
    }
    ~TempFolder() { std::filesystem::remove_all(m_path); }

    CString path(const std::string& name) const { return (m_path / name).wstring(); }

    CString file(const std::string& name, const std::vector<uint8_t>& bytes) const {
        std::ofstream(m_path / name, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        return path(name);
    }

    static std::vector<uint8_t> bytesOf(const CString& path) {
        std::ifstream file(std::filesystem::path(path.c_str()), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    std::filesystem::path m_path;
};
