// Runs wexhost.exe in a process of its own and gathers what it prints.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

// A path in the temporary folder. What is there goes with the object.
class TempFile {
  public:
    explicit TempFile(const wchar_t* name) : path(std::filesystem::temp_directory_path() / name) {}
    // Fails while a service that the first program started still has the file; it is written anew next time.
    ~TempFile() {
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    const std::filesystem::path path;
};

struct HostRun {
    unsigned status;
    std::string output;
    std::string errors;
};

// The folder of what was built, in which the host stands in bin, and beside the tests' own modules in
// testbin.
std::wstring buildFolder();

// The host of that folder. `input` is what comes from standard input.
HostRun startHost(const wchar_t* folder, const std::vector<std::wstring>& arguments,
                  const std::string& input = {});

// With the test plug-in.
HostRun runHost(const std::vector<std::wstring>& arguments, const std::string& input = {});

// One expression behind -e, headless.
HostRun evaluate(const std::wstring& expression);

// A program in a file of that name, headless, with the options in front of it.
HostRun runProgram(const std::string& text, const std::vector<std::wstring>& options = {});
