#include "tests/ui/host/HostProcess.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "host/services/CommandLine.h"

namespace fs = std::filesystem;

namespace {

// No test needs longer, and none may hang.
constexpr wchar_t TIMEOUT_SECONDS[] = L"30";

// A file that the started program takes as one of its standard streams.
class Stream {
  public:
    explicit Stream(const wchar_t* name) : m_file((std::to_wstring(GetCurrentProcessId()) + name).c_str()) {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        m_handle = CreateFileW(m_file.path.c_str(), GENERIC_READ | GENERIC_WRITE,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &inherited,
                               CREATE_ALWAYS, 0, nullptr);
    }
    ~Stream() { CloseHandle(m_handle); }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    HANDLE handle() const { return m_handle; }
    void fill(const std::string& text) const {
        DWORD written;
        WriteFile(m_handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
        SetFilePointer(m_handle, 0, nullptr, FILE_BEGIN);
    }
    std::string text() const {
        std::ifstream file(m_file.path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    TempFile m_file;
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

std::wstring buildFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return fs::path(path).parent_path().parent_path().wstring();
}

HostRun startHost(const wchar_t* folder, const std::vector<std::wstring>& arguments,
                  const std::string& input) {
    std::wstring command = quotedArgument(buildFolder() + L'\\' + folder + L"\\wexhost.exe");
    for (const std::wstring& argument : arguments) command += L" " + quotedArgument(argument);

    const Stream in(L"in.txt");
    const Stream out(L"out.txt");
    const Stream errors(L"err.txt");
    in.fill(input);
    STARTUPINFOW startup = {sizeof startup};
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = in.handle();
    startup.hStdOutput = out.handle();
    startup.hStdError = errors.handle();
    const unsigned status = runProcess(command, startup);
    return {status, out.text(), errors.text()};
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
    const TempFile program(L"program.lsp");
    std::ofstream(program.path, std::ios::binary) << text;
    std::vector<std::wstring> arguments = {L"--headless", L"--timeout", TIMEOUT_SECONDS};
    arguments.insert(arguments.end(), options.begin(), options.end());
    arguments.push_back(program.path.wstring());
    return runHost(arguments);
}
