// A folder of a test's own, which goes with the object.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

template <class Bytes = std::string>
Bytes bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class TempFolder {
  public:
    TempFolder() { std::filesystem::create_directory(path); }
    // Fails while a service that the first program started still has a file of it.
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::wstring file(const std::filesystem::path& name) const { return (path / name).wstring(); }
    template <class Bytes>
    std::wstring file(const std::filesystem::path& name, const Bytes& bytes) const {
        std::ofstream(path / name, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        return file(name);
    }

    const std::filesystem::path path = std::filesystem::temp_directory_path() /
                                       ("test-" + std::to_string(getpid()) + "-" + std::to_string(++s_made));

  private:
    inline static int s_made = 0;
};
