#include "host/editor/FunctionGuide.h"

#include <algorithm>
#include <vector>

namespace editor {

namespace {

constexpr std::string_view HEADING = "### (";

// The words that stand behind an opening parenthesis.
std::vector<std::string> namesIn(std::string_view heading) {
    std::vector<std::string> names;
    for (size_t at = heading.find('('); at != heading.npos; at = heading.find('(', at + 1))
        names.emplace_back(heading.substr(at + 1, heading.find_first_of(" )", at) - at - 1));
    return names;
}

}  // namespace

FunctionGuide::FunctionGuide(std::string_view markdown) {
    std::vector<std::string> names;
    std::string entry;
    const auto finish = [&] {
        const auto text = std::make_shared<const std::string>(std::move(entry));
        for (const std::string& name : names) m_entries.emplace(name, text);
        names.clear();
        entry.clear();
    };
    bool isCode = false;
    while (!markdown.empty()) {
        const size_t end = std::min(markdown.find('\n'), markdown.size());
        std::string_view line = markdown.substr(0, end);
        markdown.remove_prefix(std::min(end + 1, markdown.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.starts_with("```")) isCode = !isCode;
        if (!isCode && line.starts_with('#')) {
            finish();
            if (line.starts_with(HEADING)) names = namesIn(line);
        }
        if (!names.empty()) entry += std::string(line) + '\n';
    }
    finish();
}

std::string_view FunctionGuide::entry(std::string_view name) const {
    const auto at = m_entries.find(name);
    return at == m_entries.end() ? std::string_view() : std::string_view(*at->second);
}

}  // namespace editor
