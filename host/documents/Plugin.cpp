#include "host/documents/Plugin.h"

#include <exception>

#include "host/lisp/Error.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"
#include "src/platform/host/HostServices.h"

namespace {

template <class Function>
Function exported(HMODULE module, const char* name) {
    return reinterpret_cast<Function>(GetProcAddress(module, name));
}

}  // namespace

Plugin::Plugin(const std::wstring& path)
    : m_name(path.substr(path.find_last_of(L"\\/") + 1)), m_module(LoadLibraryW(path.c_str())) {
    const auto refuse = [&](const wchar_t* why) {
        if (m_module) FreeLibrary(m_module);
        throw lisp::Error(lispText(m_name + why));
    };
    if (!m_module) refuse(L" can't be loaded as a plug-in");
    m_entry = exported<EntryPoint>(m_module, PLUGIN_ENTRY_POINT);
    m_findWindow = exported<FindTileWindow>(m_module, PLUGIN_FIND_WINDOW);
    m_lispSignature = exported<LispSignature>(m_module, PLUGIN_LISP_SIGNATURE);
    m_nameWindow = exported<NameWindow>(m_module, PLUGIN_NAME_WINDOW);
    const auto version = exported<ApiVersion>(m_module, PLUGIN_GET_API_VERSION);
    if (!m_entry || !version) refuse(L" is no plug-in: it lacks pluginEntryPoint or pluginGetApiVersion");
    if (version() != HOST_API_VERSION) refuse(L" is built for another version of this host");
}

int32_t Plugin::send(PluginMessage message) {
    constexpr int32_t FAILED_MESSAGE = -1;
    std::wstring why;
    try {
        return m_entry(message, nullptr);
    } catch (const std::exception& error) {
        why = wideFromUtf8(error.what());
    } catch (...) {
        why = L"an exception of an unknown kind";
    }
    host().console().error(m_name + L": message " + std::to_wstring(message) + L" failed: " + why);
    return FAILED_MESSAGE;
}

HWND Plugin::findWindow(const wchar_t* dialog, const wchar_t* key, int32_t id) const {
    return m_findWindow ? m_findWindow(dialog, key, id) : nullptr;
}

std::vector<std::wstring> Plugin::signatures() const {
    std::vector<std::wstring> signatures;
    if (!m_lispSignature) return signatures;
    while (const wchar_t* signature = m_lispSignature(static_cast<int32_t>(signatures.size())))
        signatures.push_back(signature);
    return signatures;
}

std::wstring Plugin::nameOfWindow(HWND window) const {
    constexpr int32_t LONGEST_NAME = 256;
    std::wstring name(LONGEST_NAME, L'\0');
    name.resize(m_nameWindow ? m_nameWindow(window, name.data(), LONGEST_NAME) : 0);
    return name;
}
