// What the module exports to the host.
#include <windows.h>

#include <algorithm>
#include <optional>

#include "src/LispFunctions.h"
#include "src/LispSignatures.h"
#include "src/dialog/WexDialog.h"
#include "src/platform/gridlib/GridWindowClass.h"
#include "src/platform/host/HostPlugin.h"
#include "src/platform/host/HostServices.h"
#include "src/platform/mfc/CWinApp.h"
#include "src/platform/mfc/RedrawHold.h"
#include "src/shell/DocData.h"
#include "src/shell/Module.h"
#include "src/shell/WexDialogsApp.h"

// The module's own thread-local storage, as the linker lays it out.
extern "C" const IMAGE_TLS_DIRECTORY _tls_used;

namespace {

CWexDialogsApp g_app(lispFunctions());
HostDocDataManager g_documentData;
std::optional<GridWindowClass> g_gridClass;

// The run-time's library of threads keeps two handles of each thread that it meets, and closes them only when
// it hears that the thread ends. Nothing here is of use to it any more.
void endThreadOfRuntime(HINSTANCE instance) {
    const auto* callback = reinterpret_cast<const PIMAGE_TLS_CALLBACK*>(_tls_used.AddressOfCallBacks);
    for (; *callback; ++callback) (*callback)(instance, DLL_THREAD_DETACH, nullptr);
}

WexDialog* runningDialog(const wchar_t* name) {
    const auto& dialogs = g_dialogs.dialogs();
    for (auto at = dialogs.rbegin(); at != dialogs.rend(); ++at)
        if ((*at)->isLive() && (!name || (*at)->m_name == toLower(name))) return at->get();
    return nullptr;
}

// Empty for a window that has no name of its own.
CString nameOf(HWND window) {
    for (const auto& dialog : g_dialogs.dialogs()) {
        if (!dialog->isLive()) continue;
        if (dialog->m_hWnd == window) return dialog->m_name;
        if (::GetAncestor(window, GA_PARENT) != dialog->m_hWnd) continue;
        const int id = ::GetDlgCtrlID(window);
        const CString key = dialog->keyForId(id);
        return dialog->idForKey(key) == id ? key : CString();
    }
    return {};
}

}  // namespace

extern "C" {

__declspec(dllexport) int32_t pluginEntryPoint(int32_t message, void* packet) {
    return dispatchMessage(g_app, message, packet);
}

__declspec(dllexport) uint32_t pluginGetApiVersion() { return HOST_API_VERSION; }

__declspec(dllexport) HWND pluginFindWindow(const wchar_t* dialogName, const wchar_t* key, int32_t id) {
    const WexDialog* dialog = runningDialog(dialogName);
    if (!dialog) return nullptr;
    releaseRedraw();  // who asks for a window is about to look at it, or to work it
    if (!key && id == -1) return dialog->m_hWnd;
    return ::GetDlgItem(dialog->m_hWnd, key ? dialog->idForKey(key) : id);
}

__declspec(dllexport) const wchar_t* pluginLispSignature(int32_t index) {
    const bool exists = index >= 0 && static_cast<size_t>(index) < std::size(LISP_SIGNATURES);
    return exists ? LISP_SIGNATURES[index] : nullptr;
}

__declspec(dllexport) int32_t pluginNameWindow(HWND window, wchar_t* name, int32_t size) {
    const CString found = nameOf(window);
    if (found.empty() || found.size() >= static_cast<size_t>(size)) return 0;
    *std::copy(found.begin(), found.end(), name) = L'\0';
    return static_cast<int32_t>(found.size());
}

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* processEnds) {
    if (reason == DLL_PROCESS_ATTACH) {
        AfxSetMainWindow([] { return hostGetMainFrame(); });
        g_dialogs.clearCurrent();
        const BOOL attached = attachModule(instance);
        if (attached) g_gridClass.emplace();
        return attached;
    }
    if (reason == DLL_PROCESS_DETACH) {
        g_gridClass.reset();
        if (!processEnds) endThreadOfRuntime(instance);
        return detachModule();
    }
    return TRUE;
}
}
