// Runs wexhost.exe in a process of its own and gathers what it prints.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/TempFolder.h"

struct HostRun {
    unsigned status;
    std::string output;
    std::string errors;
};

// Whether the text has that part.
testing::AssertionResult has(const std::string& text, const std::string& part);

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
