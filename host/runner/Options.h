// The command line of wexhost. Portable.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/services/Warnings.h"

struct Options {
    // A file to load or an expression to evaluate; they run in the order in which they were given.
    struct Step {
        bool isExpression;
        std::wstring text;
    };

    bool headless = false;
    bool play = false;
    bool interactive = false;
    bool help = false;
    bool version = false;
    bool showDialogs = false;
    bool checkDialogs = false;
    bool check = false;
    bool languageServer = false;
    bool comparePictures = false;
    bool approve = false;
    std::optional<WarningMode> warn;
    bool watch = false;
    std::wstring watched;  // by which process and through which folder, see WatchLink.h; empty for nobody
    double timeoutSeconds = 0;  // 0: no limit
    std::wstring shotsFolder;
    std::wstring record;  // the file to record into; empty for none
    std::wstring plugin;
    std::wstring
        settings;  // the file that the main frame keeps its place and its history in; empty for the usual one
    std::wstring data;  // which database is open at the start; empty for none
    std::vector<std::wstring> supportFolders;
    std::vector<Step> steps;
    std::vector<std::wstring> dialogs;   // the operands of --dialogs
    std::vector<std::wstring> modules;   // the operands of --check-dialogs
    std::vector<std::wstring> pictures;  // the operands of --compare-pictures
    std::wstring error;                  // what is wrong with the command line; empty if nothing

    // Whether sessions are played: they are meant for runs without a person.
    bool playsSessions() const { return headless || play; }
    // Warnings are for whoever reads what is printed, and so for a person only who asks for them.
    WarningMode warningMode() const {
        return warn.value_or(playsSessions() ? WarningMode::on : WarningMode::off);
    }
};

// `arguments` without the program's own name.
Options parseOptions(std::span<const std::wstring> arguments);

// What --help prints.
std::wstring_view usage();
