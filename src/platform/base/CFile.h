// A file of bytes, under the class library's name. Nothing here throws: what fails gives false or less than
// was asked for. Portable.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <span>
#include <string>

class CFile {
  public:
    enum class Access {
        Read,
        Create,  // for writing; what the file held is gone
    };
    // What other openers of the file may do meanwhile. Only Windows holds them to it.
    enum class Sharing { None, All };

    // False where it can't be opened, or is a folder.
    bool Open(const std::wstring& path, Access access, Sharing sharing);
    // False where something written, at any time, didn't reach the file.
    bool Close();
    bool IsOpen() const { return m_file != nullptr; }

    uint64_t GetLength();
    uint64_t GetPosition();
    // From the start of the file.
    bool Seek(uint64_t position);
    // How many bytes were read; fewer than asked for at the end of the file.
    size_t Read(std::span<uint8_t> bytes);
    // Close tells whether it went well.
    void Write(std::span<const uint8_t> bytes);

    static void Remove(const std::wstring& path);

  private:
    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, CloseFile> m_file;
};
