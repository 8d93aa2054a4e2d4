#include "src/shell/Module.h"

#include "src/platform/base/DialogResources.h"
#include "src/platform/host/HostServices.h"
#include "src/shell/ResourceFolder.h"

HMODULE g_moduleInstance = nullptr;
HMODULE g_resourceInstance = nullptr;
WexResourceModule g_resourceModule;
CString g_buttonCaptionA;
CString g_buttonCaptionB;
CString g_buttonCaptionC;
CString g_buttonCaptionD;

namespace {

constexpr DWORD MODULE_PATH_CHARS = 4999;
constexpr int NOT_LOADED = 3;

HMODULE loadResourceModule() {
    // Under another file name the plug-in isn't found, and the null handle means the host's executable.
    const std::wstring beside =
        folderOf(modulePath(GetModuleHandleW(PLUGIN_NAME.data()))).append(RESOURCE_MODULE_NAME);
    if (const HMODULE module = LoadLibraryW(beside.c_str())) return module;
    return LoadLibraryW(RESOURCE_MODULE_NAME.data());
}

void showLoadError(DWORD error) {
    wchar_t* systemText = nullptr;
    constexpr DWORD flags =
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    FormatMessageW(flags, nullptr, error, MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT),
                   reinterpret_cast<wchar_t*>(&systemText), 0, nullptr);
    std::wstring text = L"Error loading ";
    text.append(RESOURCE_MODULE_NAME).append(L".\n").append(systemText ? systemText : L"");
    MessageBoxW(nullptr, text.c_str(), L"Load Error", MB_ICONHAND);
    LocalFree(systemText);
}

}  // namespace

std::wstring modulePath(HMODULE module) {
    std::wstring path(MODULE_PATH_CHARS, L'\0');
    path.resize(GetModuleFileNameW(module, path.data(), MODULE_PATH_CHARS));
    return path;
}

int attachModule(HMODULE instance) {
    g_moduleInstance = instance;
    AfxGetModuleState()->m_hCurrentInstanceHandle = instance;
    const HMODULE resources = loadResourceModule();
    if (!resources) {
        showLoadError(GetLastError());
        return NOT_LOADED;
    }
    g_resourceInstance = resources;
    if (!g_resourceModule.attached && AfxInitExtensionModule(g_resourceModule.extension, resources)) {
        g_resourceModule.attached = 1;
        g_resourceModule.defaultResource = AfxGetModuleState()->m_hCurrentResourceHandle;
        g_resourceModule.moduleResource = resources;
        g_resourceModule.library = std::make_unique<CDynLinkLibrary>(g_resourceModule.extension);
    }
    hostInitUiLibrary();
    return 1;
}

int detachModule() {
    if (g_resourceModule.attached) {
        g_resourceModule.library.reset();
        AfxTermExtensionModule(g_resourceModule.extension);
        g_resourceModule.attached = 0;
    }
    if (g_resourceInstance) FreeLibrary(g_resourceInstance);
    return 1;
}

CString resourceText(TextId id) { return loadString(g_resourceInstance, id); }

CString currentText(TextId id) { return loadString(AfxGetModuleState()->m_hCurrentResourceHandle, id); }

void alertText(TextId id) { hostAlert(currentText(id).c_str()); }
