#include "src/shell/EventFile.h"

#include <windows.h>

#include "src/platform/base/CFileException.h"
#include "src/platform/base/EventText.h"
#include "src/platform/host/HostServices.h"
#include "src/shell/GeneratedLispFileMgr.h"
#include "src/shell/LispInvoke.h"
#include "src/shell/Warning.h"

namespace {

constexpr DWORD TEMP_PATH_CHARS = 4096;

// Adds to the stream of that name; dropped, and not told to the Lisp program, where there is no folder for
// it.
void add(const CString& dialogName, const std::wstring& text) try {
    GeneratedLispFileMgr::GetInstance().openFile(eventFilePath(dialogName).c_str()) << text;
} catch (const CFileException&) {
}

// The file is gone again whatever the load does.
class TemporaryFile {
  public:
    explicit TemporaryFile(const CString& path) : m_path(path) {}
    ~TemporaryFile() { HostMemFile::deleteFile(m_path.c_str()); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

  private:
    const CString& m_path;
};

}  // namespace

CString eventFilePath(const CString& dialogName) {
    wchar_t folder[TEMP_PATH_CHARS];
    const DWORD length = GetTempPathW(TEMP_PATH_CHARS, folder);
    if (length == 0 || length >= TEMP_PATH_CHARS)
        throw CFileException(CFileException::badPath, -1, "Failed to get system temp path.");
    return eventFilePathIn(folder, dialogName);
}

void beginEventFile(const CString& dialogName) { add(dialogName, eventFileHeader()); }

void addAction(const CString& dialogName, const CString& suffix, const CString& lispText) {
    add(dialogName, actionDefinition(suffix, lispText));
}

bool loadEventFile(const CString& dialogName) try {
    const CString path = eventFilePath(dialogName);
    auto& manager = GeneratedLispFileMgr::GetInstance();
    const std::wstring text = manager.openFile(path.c_str()).str();
    if (HostMemFile::createTextFile(path.c_str(), text.c_str(), true, true) != 0) return false;
    const TemporaryFile file(path);
    manager.closeFile(path.c_str());
    invokeLisp(L"c:wex_loadlisp", path.c_str());
    return true;
} catch (const CFileException&) {
    warn(WARN_NOT_FOUND, L"there is no folder for temporary files: the dialog runs without its actions");
    return true;
}
