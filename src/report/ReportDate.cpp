#include "src/report/ReportDate.h"

#include <cwchar>
#include <iterator>

#include "src/platform/base/CInvalidArgException.h"

std::wstring reportDate(std::time_t moment) {
    const std::tm* local = std::localtime(&moment);
    if (!local) AfxThrowInvalidArgException();
    wchar_t text[128];
    return {text, std::wcsftime(text, std::size(text), L"%B %d, %Y", local)};
}
