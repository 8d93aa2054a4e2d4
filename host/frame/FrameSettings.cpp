#include "host/frame/FrameSettings.h"

#include <algorithm>
#include <cstdint>
#include <sstream>

#include "host/services/Texts.h"

namespace {

constexpr size_t MOST_LINES = 500;
constexpr size_t MOST_PROGRAMS = 9;  // each has a digit in the menu
constexpr int LEAST_WIDTH = 320, LEAST_HEIGHT = 240;
constexpr int LEAST_DPI = 48, MOST_DPI = 960;
// Beyond any screen; keeps the arithmetic within its numbers.
constexpr int MOST_PIXELS = 100'000;

// Each line of the file is a word and what belongs to it.
constexpr std::string_view PLACE = "place ", MAXIMIZED = "maximized ", HISTORY = "history ",
                           PROGRAM = "program ";

bool isWithin(int value, int least, int most) { return value >= least && value <= most; }

std::optional<FramePlace> parsePlace(std::string_view text, bool maximized) {
    std::istringstream numbers{std::string(text)};
    FramePlace place;
    place.maximized = maximized;
    FrameBox& box = place.box;
    if (!(numbers >> box.left >> box.top >> box.right >> box.bottom >> place.dpi)) return std::nullopt;
    for (const int side : {box.left, box.top, box.right, box.bottom})
        if (!isWithin(side, -MOST_PIXELS, MOST_PIXELS)) return std::nullopt;
    if (box.right <= box.left || box.bottom <= box.top || !isWithin(place.dpi, LEAST_DPI, MOST_DPI))
        return std::nullopt;
    return place;
}

void take(std::string_view line, FrameSettings& settings) {
    const auto restOf = [&](std::string_view word) { return line.substr(word.size()); };
    if (line.starts_with(HISTORY)) {
        settings.addLine(wideFromUtf8(restOf(HISTORY)));
    } else if (line.starts_with(PROGRAM)) {
        settings.addProgram(wideFromUtf8(restOf(PROGRAM)));
    } else {
        for (const std::string_view word : {PLACE, MAXIMIZED})
            if (line.starts_with(word))
                if (const auto place = parsePlace(restOf(word), word == MAXIMIZED)) settings.place = place;
    }
}

void keepNewest(std::vector<std::wstring>& list, size_t most) {
    if (list.size() > most) list.erase(list.begin(), list.end() - static_cast<std::ptrdiff_t>(most));
}

// A line of text stays one in the file.
bool isOneLine(const std::wstring& text) { return text.find_first_of(L"\r\n") == std::wstring::npos; }

}  // namespace

void FrameSettings::addLine(const std::wstring& line) {
    if (line.empty() || !isOneLine(line) || (!history.empty() && history.back() == line)) return;
    history.push_back(line);
    keepNewest(history, MOST_LINES);
}

void FrameSettings::addProgram(const std::wstring& path) {
    if (path.empty() || !isOneLine(path)) return;
    std::erase(programs, path);
    programs.push_back(path);
    keepNewest(programs, MOST_PROGRAMS);
}

void FrameSettings::add(const FrameSettings& later) {
    if (later.place) place = later.place;
    for (const std::wstring& line : later.history) addLine(line);
    for (const std::wstring& path : later.programs) addProgram(path);
}

FrameSettings parseFrameSettings(std::string_view text) {
    FrameSettings settings;
    while (!text.empty()) {
        const size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        take(line, settings);
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
    }
    return settings;
}

std::string frameSettingsText(const FrameSettings& settings) {
    std::ostringstream text;
    if (const auto& place = settings.place) {
        const FrameBox& box = place->box;
        text << (place->maximized ? MAXIMIZED : PLACE) << box.left << ' ' << box.top << ' ' << box.right
             << ' ' << box.bottom << ' ' << place->dpi << '\n';
    }
    for (const std::wstring& path : settings.programs) text << PROGRAM << utf8Text(path) << '\n';
    for (const std::wstring& line : settings.history) text << HISTORY << utf8Text(line) << '\n';
    return text.str();
}

FrameBox placeWithin(const FramePlace& place, int dpi, const FrameBox& area) {
    const auto scaled = [&](int64_t length) { return static_cast<int>(length * dpi / place.dpi); };
    // The start and the end of a side: not smaller than a person can use, if there is room.
    const auto fit = [](int start, int length, int least, int from, int to) {
        const int size = std::min(std::max(length, least), to - from);
        const int at = std::clamp(start, from, to - size);
        return std::pair(at, at + size);
    };
    const FrameBox& box = place.box;
    const auto [left, right] =
        fit(box.left, scaled(box.right - box.left), LEAST_WIDTH, area.left, std::max(area.left, area.right));
    const auto [top, bottom] =
        fit(box.top, scaled(box.bottom - box.top), LEAST_HEIGHT, area.top, std::max(area.top, area.bottom));
    return {left, top, right, bottom};
}
