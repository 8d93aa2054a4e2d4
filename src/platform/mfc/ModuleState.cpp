#include "src/platform/mfc/ModuleState.h"

#include <vector>

namespace {

std::vector<HMODULE>& chain() {
    static std::vector<HMODULE> modules;
    return modules;
}

}  // namespace

AFX_MODULE_STATE* AfxGetModuleState() {
    static AFX_MODULE_STATE state;
    return &state;
}

bool AfxInitExtensionModule(AFX_EXTENSION_MODULE& record, HMODULE module) {
    if (!module) return false;
    record = {true, module, module};
    return true;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& record) { record = {}; }

CDynLinkLibrary::CDynLinkLibrary(const AFX_EXTENSION_MODULE& record) : m_resources(record.hResource) {
    chain().push_back(m_resources);
}

CDynLinkLibrary::~CDynLinkLibrary() { std::erase(chain(), m_resources); }

HMODULE AfxFindResourceHandle(const wchar_t* name, const wchar_t* type) {
    const HMODULE current = AfxGetModuleState()->m_hCurrentResourceHandle;
    if (current && FindResourceW(current, name, type)) return current;
    for (const HMODULE module : chain())
        if (module != current && FindResourceW(module, name, type)) return module;
    return nullptr;
}

bool findString(HMODULE module, UINT first, UINT last,
                const std::function<bool(UINT id, std::wstring_view text)>& take) {
    // A resource holds 16 strings, each behind its length, and has the number after that of the group. To
    // look for the resource costs as much as to read it.
    constexpr UINT GROUP = 16;
    for (UINT group = first / GROUP; module && group <= last / GROUP; ++group) {
        const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(group + 1), RT_STRING);
        if (!found) continue;
        const auto* at = static_cast<const wchar_t*>(LockResource(LoadResource(module, found)));
        const wchar_t* const end = at + SizeofResource(module, found) / sizeof *at;
        for (UINT id = group * GROUP; id < (group + 1) * GROUP && at < end && *at < end - at; ++id) {
            const std::wstring_view text(at + 1, *at);
            at += 1 + text.size();
            if (!text.empty() && id >= first && id <= last && take(id, text)) return true;
        }
    }
    return false;
}

CString loadString(HMODULE module, UINT id, int bufferChars) {
    CString loaded;
    findString(module, id, id, [&](UINT, std::wstring_view text) {
        loaded = text.substr(0, bufferChars - 1);
        return true;
    });
    return loaded;
}

HICON loadIcon(UINT id, int width, int height) {
    const HMODULE module = AfxFindResourceHandle(MAKEINTRESOURCEW(id), RT_GROUP_ICON);
    if (!module) return nullptr;
    return static_cast<HICON>(LoadImageW(module, MAKEINTRESOURCEW(id), IMAGE_ICON, width, height, 0));
}
