#include "src/platform/gridlib/CGXStyle.h"

#include "src/platform/gridlib/NumberFormat.h"

CGXStyle& CGXStyle::SetValue(std::wstring_view text) { return SetValue(CellText(text)); }

CGXStyle& CGXStyle::SetValue(double number) { return SetValue(shortestText(number)); }

CGXStyle& CGXStyle::SetValue(CellText text) {
    m_value = std::move(text);
    m_look.hasValue = true;
    return *this;
}

CStringArray CGXStyle::choices() const {
    CStringArray lines;
    if (!m_look.choices) return lines;
    std::wstring_view rest = m_look.choices->view();
    while (!rest.empty()) {
        const size_t end = rest.find(L'\n');
        std::wstring_view line = rest.substr(0, end);
        rest = end == rest.npos ? std::wstring_view() : rest.substr(end + 1);
        if (line.ends_with(L'\r')) line.remove_suffix(1);
        lines.emplace_back(line);
    }
    return lines;
}

void CGXStyle::apply(const CGXStyle& over) {
    m_look.apply(over.m_look);
    if (over.hasValue()) m_value = over.m_value;
}
