#include "src/shell/Warning.h"

#include <windows.h>

#include <vector>

#include "src/platform/host/HostValue.h"
#include "src/platform/host/HostWarnings.h"

namespace {

constexpr wchar_t HOST_MODULE[] = L"hostapi.dll";
// More of a name isn't shown.
constexpr size_t MOST_SHOWN = 60;

HostWarn hostsWarn() {
    static const auto found =
        reinterpret_cast<HostWarn>(GetProcAddress(GetModuleHandleW(HOST_MODULE), HOST_WARN));
    return found;
}

}  // namespace

bool isHeard(int32_t kind) {
    const HostWarn hostWarn = hostsWarn();
    return hostWarn && hostWarn(kind, nullptr, nullptr, nullptr, 0) == HOST_NORMAL;
}

void tellWarning(int32_t kind, const CString& words) {
    if (const HostWarn hostWarn = hostsWarn()) hostWarn(kind, words.c_str(), nullptr, nullptr, 0);
}

void tellWarning(int32_t kind, const CString& words, const CString& wanted,
                 std::span<const CString> candidates) {
    std::vector<const wchar_t*> names;
    for (const CString& candidate : candidates) names.push_back(candidate.c_str());
    if (const HostWarn hostWarn = hostsWarn())
        hostWarn(kind, words.c_str(), wanted.c_str(), names.data(), names.size());
}

CString quoted(const CString& name) {
    CString shown = L"\"";
    for (const wchar_t c : name.substr(0, MOST_SHOWN)) {
        if (c == L'\n')
            shown += L"\\n";
        else if (c == L'\t')
            shown += L"\\t";
        else
            shown += c < L' ' ? L' ' : c;
    }
    return shown + (name.size() > MOST_SHOWN ? L"…\"" : L"\"");
}

CString noSuch(const wchar_t* what, int number) {
    return CString(L"there is no ") + what + L" " + std::to_wstring(number);
}
