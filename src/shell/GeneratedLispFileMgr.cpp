#include "src/shell/GeneratedLispFileMgr.h"

// Not in the class, where nothing would be exported for them.
GeneratedLispFileMgr::GeneratedLispFileMgr() = default;
GeneratedLispFileMgr::~GeneratedLispFileMgr() = default;

GeneratedLispFileMgr& GeneratedLispFileMgr::GetInstance() {
    static GeneratedLispFileMgr instance;
    return instance;
}

std::wostringstream& GeneratedLispFileMgr::openFile(const wchar_t* path) {
    auto& stream = m_streams[path];
    if (!stream) stream = std::make_unique<std::wostringstream>();
    return *stream;
}

void GeneratedLispFileMgr::closeFile(const wchar_t* path) { m_streams.erase(path); }
