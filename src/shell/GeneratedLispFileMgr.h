// The texts of event files while they are being gathered.
#pragma once

#include <map>
#include <memory>
#include <sstream>
#include <string>

// Other modules may call it: its methods are exported, those that only the class itself may call too.
class __declspec(dllexport) GeneratedLispFileMgr {
  public:
    static GeneratedLispFileMgr& GetInstance();

    // The stream of that path, compared with case: the one that is there with what it holds, or a new empty
    // one.
    std::wostringstream& openFile(const wchar_t* path);
    // Forgets that path and its text. A path that is not known is no error.
    void closeFile(const wchar_t* path);

    GeneratedLispFileMgr(const GeneratedLispFileMgr&) = delete;
    GeneratedLispFileMgr& operator=(const GeneratedLispFileMgr&) = delete;

  private:
    GeneratedLispFileMgr();
    ~GeneratedLispFileMgr();

    std::map<std::wstring, std::unique_ptr<std::wostringstream>> m_streams;
};
