#include "tests/ui/host/HostProcess.h"

#include <windows.h>

#include "host/services/CommandLine.h"

namespace {

// No test needs longer, and none may hang.
constexpr wchar_t TIMEOUT_SECONDS[] = L"30";

// A file that the started program takes as one of its standard streams.
class Stream {
  public:
    explicit Stream(const std::wstring& path) {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        m_handle = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &inherited,
                               OPEN_ALWAYS, 0, nullptr);
    }
    ~Stream() { CloseHandle(m_handle); }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    operator HANDLE() const { return m_handle; }

  private:
    HANDLE m_handle;
};

unsigned runProcess(std::wstring command, STARTUPINFOW& startup) {
    PROCESS_INFORMATION process;
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &process)) {
        return ~0U;
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD status;
    GetExitCodeProcess(process.hProcess, &status);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return status;
}

}  // namespace

testing::AssertionResult has(const std::string& text, const std::string& part) {
    if (text.find(part) != text.npos) return testing::AssertionSuccess() << part;
    return testing::AssertionFailure() << "no \"" << part << "\" in\n" << text;
}

std::wstring buildFolder() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path().parent_path().wstring();
}

HostRun startHost(const wchar_t* folder, const std::vector<std::wstring>& arguments,
                  const std::string& input) {
    std::wstring command = quotedArgument(buildFolder() + L'\\' + folder + L"\\wexhost.exe");
    for (const std::wstring& argument : arguments) command += L" " + quotedArgument(argument);

    const TempFolder streams;
    const Stream in(streams.file("in", input)), out(streams.file("out")), errors(streams.file("errors"));
    STARTUPINFOW startup = {sizeof startup};
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = in;
    startup.hStdOutput = out;
    startup.hStdError = errors;
    const unsigned status = runProcess(command, startup);
    return {status, bytesOf(streams.file("out")), bytesOf(streams.file("errors"))};
}

HostRun runHost(const std::vector<std::wstring>& arguments, const std::string& input) {
    std::vector<std::wstring> all = {L"--plugin", buildFolder() + L"\\tests\\testplugin.pgx"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return startHost(L"bin", all, input);
}

HostRun evaluate(const std::wstring& expression) {
    return runHost({L"--headless", L"--timeout", TIMEOUT_SECONDS, L"-e", expression});
}

HostRun runProgram(const std::string& text, const std::vector<std::wstring>& options) {
    const TempFolder folder;
    std::vector<std::wstring> arguments = {L"--headless", L"--timeout", TIMEOUT_SECONDS};
    arguments.insert(arguments.end(), options.begin(), options.end());
    arguments.push_back(folder.file("program.lsp", text));
    return runHost(arguments);
}
