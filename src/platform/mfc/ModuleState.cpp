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

std::wstring_view stringView(HMODULE module, UINT id) {
    if (!module) return {};
    const wchar_t* text = nullptr;
    // With no buffer the call gives the address of the string in the loaded module.
    const int length = LoadStringW(module, id, reinterpret_cast<wchar_t*>(&text), 0);
    return length > 0 ? std::wstring_view(text, length) : std::wstring_view{};
}

CString loadString(HMODULE module, UINT id, int bufferChars) {
    return stringView(module, id).substr(0, bufferChars - 1);
}

HICON loadIcon(UINT id, int width, int height) {
    const HMODULE module = AfxFindResourceHandle(MAKEINTRESOURCEW(id), RT_GROUP_ICON);
    if (!module) return nullptr;
    return static_cast<HICON>(LoadImageW(module, MAKEINTRESOURCEW(id), IMAGE_ICON, width, height, 0));
}
