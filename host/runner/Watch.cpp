#include "host/runner/Watch.h"

#include <windows.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "host/runner/HostFiles.h"
#include "host/runner/TempFolder.h"
#include "host/runner/WatchLink.h"
#include "host/services/CommandLine.h"
#include "host/services/Host.h"
#include "host/services/ProgramFolder.h"
#include "host/services/Texts.h"
#include "src/platform/base/AddOns.h"
#include "src/platform/base/DialogResources.h"

namespace fs = std::filesystem;

namespace {

constexpr DWORD LOOK_MILLISECONDS = 50;
// An editor may save in several writes: so long nothing more is written.
constexpr std::chrono::milliseconds QUIET(150);
// A run that doesn't end by itself, as in a loop without an end, is ended.
constexpr DWORD PATIENCE_MILLISECONDS = 5000;

HANDLE g_stop = nullptr;

BOOL WINAPI stop(DWORD) noexcept { return SetEvent(g_stop); }

// The library's own question for a time of writing knows whole seconds only, too few for two saves in a row.
struct Stamp {
    uint64_t time = 0;
    uint64_t size = 0;
    bool operator==(const Stamp&) const = default;
};

// Nothing while there is no such file, as between the two steps of a save by renaming.
std::optional<Stamp> stampOf(const fs::path& file) {
    WIN32_FILE_ATTRIBUTE_DATA found{};
    if (!GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &found)) return std::nullopt;
    const auto joined = [](DWORD high, DWORD low) { return static_cast<uint64_t>(high) << 32 | low; };
    return Stamp{joined(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime),
                 joined(found.nFileSizeHigh, found.nFileSizeLow)};
}

bool isLisp(const fs::path& file) { return file.extension() == L".lsp"; }

class WatchedFiles {
  public:
    // Also one that isn't there yet.
    void add(const fs::path& file) { m_stamps.try_emplace(file, stampOf(file).value_or(Stamp{})); }

    // The files that are others than when it was asked last.
    std::vector<fs::path> changed() {
        std::vector<fs::path> files;
        for (auto& [file, stamp] : m_stamps) {
            const auto now = stampOf(file);
            if (!now || *now == stamp) continue;
            stamp = *now;
            files.push_back(file);
        }
        return files;
    }

    // What is wrong with the first program that can't be read; empty where all can.
    std::wstring fault() const {
        lisp::Interpreter& lisp = host().lisp();
        for (const auto& [file, stamp] : m_stamps) {
            if (!isLisp(file)) continue;
            try {
                const std::u16string name = lispText(file.filename().wstring());
                lisp.readAll(lisp.fileText(lispText(file.wstring())), {name});
            } catch (const std::exception& error) {
                return wideFromUtf8(error.what());
            }
        }
        return {};
    }

  private:
    std::map<fs::path, Stamp> m_stamps;
};

class Watch {
  public:
    Watch(const Options& options, std::span<const std::wstring> arguments)
        : m_link(std::to_wstring(GetCurrentProcessId())),
          m_end(CreateEventW(nullptr, TRUE, FALSE, endEventName(m_link).c_str())) {
        m_commandLine = quotedArgument((programFolder() / L"wexhost.exe").wstring()) + L" --watched=" +
                        quotedArgument(m_link + L"=" + folder().wstring());
        for (const std::wstring& argument : arguments)
            if (argument != L"--watch") m_commandLine += L" " + quotedArgument(argument);
        for (const Options::Step& step : options.steps)
            if (!step.isExpression) m_files.add(fs::absolute(systemPath(step.text)));
        const fs::path plugin =
            options.plugin.empty() ? programFolder() / PLUGIN_NAME : systemPath(options.plugin);
        m_files.add(plugin);
        m_pluginFolder = plugin.parent_path();
    }
    ~Watch() { CloseHandle(m_end); }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    void work() {
        start();
        while (WaitForSingleObject(g_stop, LOOK_MILLISECONDS) == WAIT_TIMEOUT) look();
        end();
    }

  private:
    using Clock = std::chrono::steady_clock;

    // This process's temporary folder.
    static fs::path folder() { return fs::temp_directory_path(); }

    void start() {
        m_found = 0;
        std::error_code ignored;
        fs::remove(folder() / FOUND_FILES, ignored);
        ResetEvent(m_end);
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process{};
        // A group of its own: Ctrl+C is this process's to hear.
        if (!CreateProcessW(nullptr, m_commandLine.data(), nullptr, nullptr, TRUE, CREATE_NEW_PROCESS_GROUP,
                            nullptr, nullptr, &startup, &process))
            return host().console().error(L"wexhost: the program can't be run");
        CloseHandle(process.hThread);
        m_process = process.hProcess;
    }

    // The run leaves its dialogs' state behind.
    void end() {
        if (!m_process) return;
        SetEvent(m_end);
        if (WaitForSingleObject(m_process, PATIENCE_MILLISECONDS) != WAIT_OBJECT_0) {
            host().console().error(
                L"wexhost: the program doesn't end and is stopped; its dialogs may open without what they "
                L"held");
            TerminateProcess(m_process, 0);
            WaitForSingleObject(m_process, INFINITE);
        }
        CloseHandle(std::exchange(m_process, nullptr));
    }

    void look() {
        if (m_process && WaitForSingleObject(m_process, 0) == WAIT_OBJECT_0) {
            CloseHandle(std::exchange(m_process, nullptr));
            host().console().error(L"wexhost: the program has ended; it runs again when it is saved");
        }
        addFound();
        for (const fs::path& addOn : addOnPaths(m_pluginFolder)) m_files.add(addOn);
        for (const fs::path& file : m_files.changed()) {
            m_saved = file.filename().wstring();
            m_changedAt = Clock::now();
        }
        if (!m_changedAt || Clock::now() - *m_changedAt < QUIET) return;
        m_changedAt.reset();
        runAgain();
    }

    void runAgain() {
        const std::wstring fault = m_files.fault();
        if (!fault.empty())
            return host().console().error(fault + L"\nwexhost: nothing runs anew until that is mended");
        host().console().error(L"wexhost: " + m_saved + L" was saved, and the program runs anew");
        end();
        start();
    }

    // What the run has found since.
    void addFound() {
        std::ifstream list(folder() / FOUND_FILES, std::ios::binary);
        list.seekg(m_found);
        for (std::string line; std::getline(list, line) && !list.eof();) {
            m_files.add(wideFromUtf8(line));
            m_found = list.tellg();
        }
    }

    std::wstring m_link;
    HANDLE m_end;
    std::wstring m_commandLine;
    fs::path m_pluginFolder;
    WatchedFiles m_files;
    std::streamoff m_found = 0;
    HANDLE m_process = nullptr;
    std::wstring m_saved;
    std::optional<Clock::time_point> m_changedAt;
};

}  // namespace

int watchProgram(const Options& options, std::span<const std::wstring> arguments) {
    g_stop = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    SetConsoleCtrlHandler(&stop, TRUE);
    const TempFolder folder;
    host().lisp().setFileAccess(std::make_unique<HostFiles>(std::vector<fs::path>()));
    Watch(options, arguments).work();
    return 0;
}
