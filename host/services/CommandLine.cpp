#include "host/services/CommandLine.h"

std::wstring quotedArgument(const std::wstring& argument) {
    std::wstring text = L"\"";
    size_t backslashes = 0;
    for (const wchar_t c : argument) {
        if (c == L'"') text.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        text += c;
    }
    return text.append(backslashes, L'\\') + L'"';
}
