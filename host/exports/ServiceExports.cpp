// The exports of HostServices.h. None lets an exception out: the plug-in has a run-time of its own.
#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <filesystem>
#include <string>

#include "host/services/DisplayScale.h"
#include "host/services/DrawingColors.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"
#include "src/platform/host/HostServices.h"
#include "src/platform/host/HostValue.h"

namespace {

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";

// Longer output is cut.
constexpr size_t MOST_PRINTED_CHARS = 16384;

class File {
  public:
    explicit File(HANDLE handle) : m_handle(handle) {}
    ~File() {
        if (isOpen()) CloseHandle(m_handle);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    bool write(std::string_view bytes) const {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(bytes.size());
        return WriteFile(m_handle, bytes.data(), size, &written, nullptr) && written == size;
    }

  private:
    HANDLE m_handle;
};

// Where the file of that name lies; empty where there is none.
std::filesystem::path fileNamed(const std::wstring& name) {
    const auto file = host().lisp().files().find(lispText(name));
    // A Lisp program is found without its extension, too; other files aren't.
    if (!file || file->filename() != std::filesystem::path(name).filename()) return {};
    return std::filesystem::absolute(*file).make_preferred();
}

}  // namespace

void hostAlert(const wchar_t* text) { host().alerts().show(text ? text : L""); }

int hostPrintf(const wchar_t* format, ...) {
    std::wstring text(MOST_PRINTED_CHARS, L'\0');
    va_list values;
    va_start(values, format);
    // The platform's own function: in others %s is narrow text.
    const int length = _vsnwprintf(text.data(), text.size(), format, values);
    va_end(values);
    if (length >= 0) text.resize(static_cast<size_t>(length));
    host().console().print(text);
    return HOST_NORMAL;
}

// Called while the loader holds its lock; everything is readied at its first use.
void hostInitUiLibrary() {}

int hostGraphScr() {
    host().mainFrame();
    return HOST_NORMAL;
}

HWND hostGetMainFrame() { return host().mainFrame(); }

double hostMonitorDpiXScale(HMONITOR monitor) { return displayScale(monitor).x; }

double hostMonitorDpiYScale(HMONITOR monitor) { return displayScale(monitor).y; }

int hostFindFile(const wchar_t* name, wchar_t* found, size_t size) {
    try {
        const std::wstring path = fileNamed(name ? name : L"").wstring();
        if (path.empty() || path.size() >= size) return HOST_ERROR;
        *std::copy(path.begin(), path.end(), found) = L'\0';
        return HOST_NORMAL;
    } catch (const std::exception&) {
        // Such as a name that no file can have.
        return HOST_ERROR;
    }
}

int hostGetCurrentColors(uint32_t* colors, size_t count) {
    const size_t known = std::min(count, std::size(DRAWING_COLORS));
    std::fill(std::copy_n(DRAWING_COLORS, known, colors), colors + count, 0);
    return HOST_NORMAL;
}

int hostMemFileCreate(const wchar_t* path, const wchar_t* text, bool overwrite, bool unicode) {
    const DWORD disposition = overwrite ? CREATE_ALWAYS : CREATE_NEW;
    {
        const File file(
            CreateFileW(path, GENERIC_WRITE, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!file.isOpen()) return static_cast<int>(GetLastError());
        if ((!unicode || file.write(BYTE_ORDER_MARK)) && file.write(utf8Text(text))) return 0;
    }
    // A part of a program would load as if it were the whole.
    DeleteFileW(path);
    return ERROR_WRITE_FAULT;
}

int hostMemFileDelete(const wchar_t* path) {
    return DeleteFileW(path) ? 0 : static_cast<int>(GetLastError());
}
