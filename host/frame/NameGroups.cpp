#include "host/frame/NameGroups.h"

#include <algorithm>
#include <iterator>

std::vector<NameGroup> groupNames(std::vector<std::wstring> names, size_t most) {
    std::erase(names, std::wstring());
    std::sort(names.begin(), names.end());
    std::vector<NameGroup> groups;
    for (auto first = names.begin(); first != names.end();) {
        const wchar_t letter = first->front();
        const auto last = std::find_if(first, names.end(),
                                       [=](const std::wstring& name) { return name.front() != letter; });
        const auto count = static_cast<size_t>(last - first);
        if (groups.empty() || groups.back().names.size() + count > most)
            groups.push_back({L"&" + std::wstring(1, letter), {}});
        else
            groups.back().title = groups.back().title.substr(0, 2) + L" - " + letter;
        std::move(first, last, std::back_inserter(groups.back().names));
        first = last;
    }
    return groups;
}
