// What the main frame keeps between two runs: its place, the command line's history, the programs that were
// run. Portable.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct FrameBox {
    int left = 0, top = 0, right = 0, bottom = 0;
    bool operator==(const FrameBox&) const = default;
};

struct FramePlace {
    FrameBox box;  // device pixels of the whole screen, as it stands when it isn't maximized
    int dpi = 96;  // of the display that it stood on
    bool maximized = false;
};

struct FrameSettings {
    std::optional<FramePlace> place;
    std::vector<std::wstring> history;   // lines of the command line, oldest first
    std::vector<std::wstring> programs;  // paths, oldest first

    // The line was entered; the oldest of too many is forgotten.
    void addLine(const std::wstring& line);
    // The program was run; it is in the list once.
    void addProgram(const std::wstring& path);
    // What another run did since these were read stays, and `later` comes behind it.
    void add(const FrameSettings& later);
};

// From the text of a file, in UTF-8. What can't be understood is passed over.
FrameSettings parseFrameSettings(std::string_view text);
std::string frameSettingsText(const FrameSettings& settings);

// Where the frame stands on a display of that scale whose free area is `area`: as large as it was, but wholly
// within.
FrameBox placeWithin(const FramePlace& place, int dpi, const FrameBox& area);
