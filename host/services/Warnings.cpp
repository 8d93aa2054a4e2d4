#include "host/services/Warnings.h"

#include <utility>

#include "host/lisp/NearestName.h"
#include "host/services/Texts.h"

namespace {

std::wstring suggestion(std::wstring_view wanted, std::span<const std::wstring> candidates) {
    if (wanted.empty()) return {};
    std::vector<std::u16string> names;
    for (const std::wstring& candidate : candidates) names.push_back(lispText(candidate));
    const auto nearest = lisp::nearestName(lispText(wanted), names);
    return nearest ? L"; did you mean \"" + wideText(*nearest) + L"\"?" : L"";
}

}  // namespace

Warnings::Key Warnings::keyOf(const Site& site) {
    return {site.place.file, site.place.line, site.kind, std::wstring(site.function)};
}

bool Warnings::isNew(const Site& site) const { return isHeard() && !m_told.contains(keyOf(site)); }

std::optional<std::wstring> Warnings::tell(const Site& site, std::wstring_view words,
                                           std::wstring_view wanted,
                                           std::span<const std::wstring> candidates) {
    if (!isHeard() || !m_told.insert(keyOf(site)).second) return std::nullopt;
    std::wstring line = wideText(m_lisp.lineOf(site.place).text());
    if (!line.empty()) line += L": ";
    if (!site.function.empty()) line.append(site.function).append(L": ");
    m_lines.push_back(line.append(words) + suggestion(wanted, candidates));
    return m_lines.back();
}

std::vector<std::wstring> Warnings::take() { return std::exchange(m_lines, {}); }
