#include "src/platform/base/CFile.h"

#include <filesystem>
#include <system_error>

#ifdef _WIN32
#include <share.h>
#endif

namespace {

#ifdef _WIN32
std::FILE* openFile(const std::wstring& path, CFile::Access access, CFile::Sharing sharing) {
    return _wfsopen(path.c_str(), access == CFile::Access::Read ? L"rbN" : L"wbN",
                    sharing == CFile::Sharing::None ? _SH_DENYRW : _SH_DENYNO);
}
int seek(std::FILE* file, int64_t offset, int origin) { return _fseeki64(file, offset, origin); }
int64_t position(std::FILE* file) { return _ftelli64(file); }
#else
std::FILE* openFile(const std::wstring& path, CFile::Access access, CFile::Sharing) {
    const std::filesystem::path file(path);
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) return nullptr;
    return std::fopen(file.c_str(), access == CFile::Access::Read ? "rb" : "wb");
}
int seek(std::FILE* file, int64_t offset, int origin) { return fseeko(file, offset, origin); }
int64_t position(std::FILE* file) { return ftello(file); }
#endif

}  // namespace

bool CFile::Open(const std::wstring& path, Access access, Sharing sharing) {
    m_file.reset(openFile(path, access, sharing));
    return IsOpen();
}

bool CFile::Close() {
    if (!m_file) return false;
    const bool failed = std::ferror(m_file.get()) != 0;
    return std::fclose(m_file.release()) == 0 && !failed;
}

uint64_t CFile::GetLength() {
    const uint64_t here = GetPosition();
    seek(m_file.get(), 0, SEEK_END);
    const uint64_t length = GetPosition();
    Seek(here);
    return length;
}

uint64_t CFile::GetPosition() { return static_cast<uint64_t>(position(m_file.get())); }

bool CFile::Seek(uint64_t position) {
    return seek(m_file.get(), static_cast<int64_t>(position), SEEK_SET) == 0;
}

size_t CFile::Read(std::span<uint8_t> bytes) {
    return std::fread(bytes.data(), 1, bytes.size(), m_file.get());
}

void CFile::Write(std::span<const uint8_t> bytes) {
    std::fwrite(bytes.data(), 1, bytes.size(), m_file.get());
}

void CFile::Remove(const std::wstring& path) {
    std::error_code ignored;
    std::filesystem::remove(std::filesystem::path(path), ignored);
}
