#include "host/documents/Database.h"

#include <windows.h>

#include <algorithm>
#include <stdexcept>

#include "host/database/DrawingFile.h"
#include "host/database/DxfReader.h"
#include "host/documents/OpenedObjects.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"
#include "src/platform/base/Text.h"

namespace {

std::vector<Database*>& databases() {
    static auto& all = *new std::vector<Database*>;
    return all;
}

class File {
  public:
    explicit File(HANDLE handle) : m_handle(handle) {
        if (handle == INVALID_HANDLE_VALUE) fail();
    }
    ~File() { CloseHandle(m_handle); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    operator HANDLE() const { return m_handle; }

    [[noreturn]] static void fail() {
        throw std::runtime_error("the system's error " + std::to_string(GetLastError()));
    }

  private:
    HANDLE m_handle;
};

}  // namespace

std::string fileBytes(const std::wstring& path, int sharing) {
    const DWORD share = sharing == HOST_SHARE_NONE ? FILE_SHARE_READ : FILE_SHARE_READ | FILE_SHARE_WRITE;
    const File file(CreateFileW(path.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr));
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file, &size)) File::fail();
    constexpr LONGLONG MOST_BYTES = 0x7FFF'0000;
    if (size.QuadPart > MOST_BYTES) throw std::runtime_error("it is larger than 2 GB");
    std::string bytes(static_cast<size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (!ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr)) File::fail();
    bytes.resize(read);
    return bytes;
}

void writeWhole(const std::wstring& path, const std::string& bytes) {
    const std::wstring written = path + L".new";
    {
        const File file(CreateFileW(written.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
        DWORD count = 0;
        if (!WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) ||
            count != bytes.size() || !FlushFileBuffers(file)) {
            const DWORD error = GetLastError();
            DeleteFileW(written.c_str());
            SetLastError(error);
            File::fail();
        }
    }
    if (!MoveFileExW(written.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING)) {
        const DWORD error = GetLastError();
        DeleteFileW(written.c_str());
        SetLastError(error);
        File::fail();
    }
}

Database::Database() : m_drawing(std::make_unique<cad::Drawing>()) { databases().push_back(this); }

Database::~Database() {
    std::erase(databases(), this);
    opened::closeAllOf(*m_drawing);
}

void Database::setDrawing(cad::Drawing drawing) {
    opened::closeAllOf(*m_drawing);
    *m_drawing = std::move(drawing);
}

std::string Database::read(const std::wstring& path, int sharing) {
    const std::string bytes = fileBytes(path, sharing);
    if (!toLower(path).ends_with(L".dxf")) {
        setDrawing(cad::drawingOf(bytes));
        return {};
    }
    cad::DxfDrawing import = cad::readDxf(bytes);
    setDrawing(std::move(import.drawing));
    std::string left;
    for (const auto& [kind, count] : import.skipped) {
        left += (left.empty() ? "left out: " : ", ") + std::to_string(count) + " " + kind;
    }
    return left;
}

int Database::readFile(const wchar_t* path, int sharing) {
    try {
        const std::string left = read(path, sharing);
        if (!left.empty()) host().console().print(std::wstring(path) + L": " + wideFromUtf8(left) + L"\n");
        return HOST_NORMAL;
    } catch (const std::exception& fault) {
        host().console().print(std::wstring(path) + L": " + wideFromUtf8(fault.what()) + L"\n");
        setDrawing({});
        return HOST_ERROR;
    }
}

graphics::FoundBlock Database::find(HostObjectId id) {
    for (Database* database : databases()) {
        if (const cad::Block* block = database->drawing().block(cad::ObjectId{id}))
            return {&database->drawing(), block};
    }
    return {};
}

HostBlockTable* Database::openBlockTable(int mode) {
    return opened::blockTable(*m_drawing, mode == HOST_FOR_WRITE);
}

HostBlockRecord* Database::openBlock(HostObjectId id, int mode) {
    cad::Block* block = m_drawing->block(cad::ObjectId{id});
    return block ? opened::block(*m_drawing, *block, mode == HOST_FOR_WRITE) : nullptr;
}

HostObjectId Database::tableStyle(const wchar_t* name) const {
    const cad::TableStyle* style = m_drawing->tableStyle(lispText(name));
    return style ? style->id : 0;
}

HostViewportRecord* Database::openViewport(const wchar_t* name) {
    return equalIgnoringCase(name, L"*Active") ? opened::viewport(m_drawing->viewport()) : nullptr;
}
