#include "src/platform/gridlib/CellsText.h"

#include <cstdio>

namespace {

bool endsCell(wchar_t c) { return c == L'\t' || c == L'\n' || c == L'\r'; }

void addQuoted(std::wstring& text, const CString& cell) {
    text += L'"';
    for (const wchar_t c : cell) {
        if (c == L'"') text += L'"';
        text += c;
    }
    text += L'"';
}

// The quoted cell at the start of `rest`, which loses it; false, with nothing taken, where there is none.
bool takeQuoted(std::wstring_view& rest, CString& cell) {
    if (!rest.starts_with(L'"')) return false;
    CString taken;
    for (size_t at = 1; at < rest.size(); ++at) {
        if (rest[at] != L'"') {
            taken += rest[at];
        } else if (at + 1 < rest.size() && rest[at + 1] == L'"') {
            taken += rest[at++];
        } else {
            if (at + 1 < rest.size() && !endsCell(rest[at + 1])) return false;
            rest.remove_prefix(at + 1);
            cell = std::move(taken);
            return true;
        }
    }
    return false;
}

void takePlain(std::wstring_view& rest, CString& cell) {
    size_t length = 0;
    while (length < rest.size() && !endsCell(rest[length])) ++length;
    cell = CString(rest.substr(0, length));
    rest.remove_prefix(length);
}

void addUtf8(std::string& bytes, uint32_t code) {
    if (code < 0x80) {
        bytes += static_cast<char>(code);
        return;
    }
    const int more = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr uint32_t lead[] = {0, 0xC0, 0xE0, 0xF0};
    bytes += static_cast<char>(lead[more] | code >> 6 * more);
    for (int i = more - 1; i >= 0; --i) bytes += static_cast<char>(0x80 | (code >> 6 * i & 0x3F));
}

bool isHighSurrogate(uint32_t code) { return code >= 0xD800 && code < 0xDC00; }
bool isSurrogate(uint32_t code) { return code >= 0xD800 && code < 0xE000; }

// UTF-8 of a text of UTF-16 or UTF-32 units; half a pair becomes the replacement character.
void addEscaped(std::string& html, std::wstring_view text) {
    for (size_t i = 0; i < text.size(); ++i) {
        uint32_t code = static_cast<uint32_t>(text[i]);
        if (isHighSurrogate(code) && i + 1 < text.size() && isSurrogate(text[i + 1]) &&
            !isHighSurrogate(text[i + 1]))
            code = 0x10000 + ((code - 0xD800) << 10) + (static_cast<uint32_t>(text[++i]) - 0xDC00);
        if (code == L'&')
            html += "&amp;";
        else if (code == L'<')
            html += "&lt;";
        else if (code == L'>')
            html += "&gt;";
        else if (code == L'\n')
            html += "<br>";
        else if (code != L'\r' && code != 0)
            addUtf8(html, isSurrogate(code) || code > 0x10FFFF ? 0xFFFD : code);
    }
}

}  // namespace

std::wstring cellsAsTabs(const CellRows& rows) {
    std::wstring text;
    for (const CStringArray& row : rows) {
        for (size_t col = 0; col < row.size(); ++col) {
            if (col > 0) text += L'\t';
            if (row[col].find_first_of(L"\t\r\n") != CString::npos || row[col].starts_with(L'"'))
                addQuoted(text, row[col]);
            else
                text += row[col];
        }
        text += L"\r\n";
    }
    return text;
}

CellRows cellsFromTabs(std::wstring_view text) {
    // What follows a 0 is none of the text: the platform ends it there.
    std::wstring_view rest = text.substr(0, text.find(L'\0'));
    CellRows rows;
    while (!rest.empty()) {
        CStringArray& row = rows.emplace_back();
        for (;;) {
            CString& cell = row.emplace_back();
            if (!takeQuoted(rest, cell)) takePlain(rest, cell);
            if (!rest.starts_with(L'\t')) break;
            rest.remove_prefix(1);
        }
        rest.remove_prefix(rest.starts_with(L"\r\n") ? 2 : !rest.empty());
    }
    return rows;
}

std::string cellsAsHtml(const CellRows& rows) {
    std::string table = "<table>";
    for (const CStringArray& row : rows) {
        table += "<tr>";
        for (const CString& cell : row) {
            table += "<td>";
            addEscaped(table, cell);
            table += "</td>";
        }
        table += "</tr>\r\n";
    }
    table += "</table>";
    const std::string before = "<html><body>\r\n<!--StartFragment-->";
    const std::string after = "<!--EndFragment-->\r\n</body></html>";
    constexpr char heading[] =
        "Version:0.9\r\nStartHTML:%010zu\r\nEndHTML:%010zu\r\nStartFragment:%010zu\r\nEndFragment:%010zu\r\n";
    // Each offset has ten digits, so the heading's length doesn't depend on them.
    const size_t html =
        static_cast<size_t>(std::snprintf(nullptr, 0, heading, size_t{}, size_t{}, size_t{}, size_t{}));
    const size_t fragment = html + before.size();
    const size_t end = fragment + table.size() + after.size();
    char filled[160];
    std::snprintf(filled, sizeof filled, heading, html, end, fragment, fragment + table.size());
    return filled + before + table + after;
}
