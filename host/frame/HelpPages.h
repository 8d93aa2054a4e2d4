// The documents that the main frame's help opens.
#pragma once

#include <filesystem>
#include <span>
#include <string>

struct HelpPage {
    const wchar_t* text;  // in the menu
    const wchar_t* file;  // without extension
};
std::span<const HelpPage> helpPages();

// Where the page lies beside the host or above it: as a page for a browser, or as the source tree has it.
// Empty where nowhere.
std::filesystem::path findHelpPage(const HelpPage& page);
