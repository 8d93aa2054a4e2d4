// The check of key lists against templates, run as a user runs it.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <string>

namespace {

struct Outcome {
    std::string output;
    DWORD status = 0;
};

std::filesystem::path buildFolder() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path().parent_path();
}

// What the host in `folder` prints when it checks the dialogs of those modules.
Outcome checkDialogs(const wchar_t* folder, const std::wstring& modules) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    HANDLE read = nullptr, write = nullptr;
    CreatePipe(&read, &write, &inherited, 0);
    SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW startup = {sizeof startup};
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = write;
    std::wstring command =
        L'"' + (buildFolder() / folder / L"wexhost.exe").wstring() + L"\" --check-dialogs " + modules;
    PROCESS_INFORMATION process = {};
    const bool started = CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                                        &startup, &process);
    CloseHandle(write);
    Outcome run;
    if (!started) {
        ADD_FAILURE() << "can't start wexhost";
    } else {
        char buffer[4096];
        for (DWORD count = 0; ReadFile(read, buffer, sizeof buffer, &count, nullptr) && count;)
            run.output.append(buffer, count);
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &run.status);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    CloseHandle(read);
    return run;
}

TEST(CheckDialogs, findsEachKindOfMistake) {
    const std::wstring odd = L'"' + (buildFolder() / L"testbin/WexDialogs.d/Odd.dll").wstring() + L'"';
    const Outcome run = checkDialogs(L"testbin", odd);
    EXPECT_EQ(run.status, 1u);
    for (const char* line : {
             "ODD_KINDS: key \"nocontrol\" has no control: give the id 124",
             "ODD_KINDS: control 109 has no key",
             "ODD_KINDS: control 399 has no key",
             "ODD_KINDS: control 108 is out of reach",
             "ODD_KINDS: control 400 is out of reach",
             "ODD_OLD: control 65535 is what every unknown key would reach",
             "ODD_MISTAKES: key \"b\" stands twice",
             "ODD_MISTAKES: control 113 is there twice",
             "ODD_MISTAKES: control 110 stands at the place of the key \"ok\"",
             "ODD_MISTAKES: control 113 has the mnemonic \"a\" of control 112",
             "ODD_MISTAKES: control 112 cuts off its text",
             "Odd.dll: template 2007 has no key list",
             "note: Odd.dll has key lists without a template: ODD_NO_TEMPLATE\n",
         })
        EXPECT_NE(run.output.find(line), std::string::npos) << line << "\n" << run.output;
    // The dialog of buttons is sound, and nothing is said of it: neither its icons nor its empty texts.
    EXPECT_EQ(run.output.find("ODD_BUTTONS"), std::string::npos) << run.output;
}

TEST(CheckDialogs, findsNothingInWhatIsShipped) {
    const Outcome run = checkDialogs(L"bin", L"");
    EXPECT_EQ(run.status, 0u);
    EXPECT_NE(run.output.find(", 0 mismatches\n"), std::string::npos) << run.output;
}

TEST(CheckDialogs, tellsAModuleThatIsMissing) {
    const Outcome run = checkDialogs(L"bin", L"no_such.dll");
    EXPECT_EQ(run.status, 1u);
    EXPECT_NE(run.output.find("no_such.dll: can't be loaded"), std::string::npos) << run.output;
}

}  // namespace
