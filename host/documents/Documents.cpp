#include "host/documents/Documents.h"

#include <algorithm>
#include <utility>

#include "host/lisp/Error.h"
#include "host/lisp/Reader.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"
#include "src/platform/base/Text.h"

void Documents::open() {
    if (!m_documents.empty()) {
        for (const auto& plugin : m_plugins) {
            if (plugin->worksWithSeveralDocuments()) continue;
            throw lisp::Error(lispText(plugin->name() + L" works with one document only"));
        }
    }
    m_current = m_documents.emplace_back(std::make_unique<HostDocument>()).get();
    for (const auto& plugin : m_plugins) tell(*plugin, PLUGIN_LOAD_DOCUMENT);
}

bool Documents::close() {
    if (!m_current) return false;
    // A reactor may take itself out while it is being told.
    for (HostDocManagerReactor* reactor : std::vector(m_reactors)) reactor->documentToBeDestroyed(m_current);
    for (const auto& plugin : m_plugins) tell(*plugin, PLUGIN_UNLOAD_DOCUMENT);
    // What a plug-in left behind goes with the document all the same.
    for (const auto& [name, owner] : std::set(m_current->functions)) undefine(*m_current, name, owner);
    std::erase_if(m_documents, [this](const auto& document) { return document.get() == m_current; });
    m_current = m_documents.empty() ? nullptr : m_documents.back().get();
    return true;
}

void Documents::loadPlugin(const std::wstring& path) {
    auto loaded = std::make_unique<Plugin>(path);
    if (pluginOf(loaded->module())) throw lisp::Error(lispText(loaded->name() + L" is loaded already"));
    Plugin& plugin = *m_plugins.emplace_back(std::move(loaded));
    tell(plugin, PLUGIN_INIT);
    for (const auto& document : m_documents) tellOfDocument(*document, plugin, PLUGIN_LOAD_DOCUMENT);
}

void Documents::unloadPlugin(const std::wstring& name) {
    const auto found = std::find_if(m_plugins.rbegin(), m_plugins.rend(), [&](const auto& plugin) {
        return name.empty() || equalIgnoringCase(plugin->name(), name);
    });
    if (found == m_plugins.rend()) {
        throw lisp::Error(name.empty() ? u"no plug-in is loaded" : lispText(name + L" isn't loaded"));
    }
    Plugin& plugin = **found;
    if (!plugin.isUnloadable()) throw lisp::Error(lispText(plugin.name() + L" doesn't allow to be unloaded"));
    if (CallFrame::isRunning(&plugin)) {
        throw lisp::Error(lispText(plugin.name() + L" can't be unloaded while one of its functions runs"));
    }
    for (const auto& document : m_documents) tellOfDocument(*document, plugin, PLUGIN_UNLOAD_DOCUMENT);
    tell(plugin, PLUGIN_UNLOAD);
    forgetFunctionsOf(plugin);
    m_plugins.erase(std::next(found).base());
}

Plugin* Documents::pluginOf(HMODULE module) const {
    const auto found = std::find_if(m_plugins.begin(), m_plugins.end(),
                                    [=](const auto& plugin) { return plugin->module() == module; });
    return found == m_plugins.end() ? nullptr : found->get();
}

void Documents::closeAll() {
    while (close()) {
    }
    for (; !m_plugins.empty(); m_plugins.pop_back()) tell(*m_plugins.back(), PLUGIN_UNLOAD);
}

HWND Documents::findWindow(const wchar_t* dialog, const wchar_t* key, int32_t id) const {
    for (auto plugin = m_plugins.rbegin(); plugin != m_plugins.rend(); ++plugin) {
        if (const HWND window = (*plugin)->findWindow(dialog, key, id)) return window;
    }
    return nullptr;
}

std::vector<std::wstring> Documents::signatures() const {
    std::vector<std::wstring> all;
    for (const auto& plugin : m_plugins)
        for (std::wstring& signature : plugin->signatures()) all.push_back(std::move(signature));
    return all;
}

std::wstring Documents::nameOfWindow(HWND window) const {
    for (auto plugin = m_plugins.rbegin(); plugin != m_plugins.rend(); ++plugin) {
        const std::wstring name = (*plugin)->nameOfWindow(window);
        if (!name.empty()) return name;
    }
    return {};
}

bool Documents::define(const std::wstring& name, int code) {
    if (!m_current || !lisp::isWord(lispText(name))) return false;
    const std::wstring key = toLower(name);
    Plugin* const owner = caller();
    LispFunction& function = m_functions[key];
    function.name = key;
    const auto bound = m_handlers.find({owner, code});
    std::erase_if(function.definitions, [=](const auto& known) { return known.plugin == owner; });
    function.definitions.push_back({owner, code, bound == m_handlers.end() ? nullptr : bound->second});
    m_lisp.defineNative(lispText(name), &callPluginFunction, &function);
    m_current->functions.insert({key, owner});
    return true;
}

bool Documents::bind(HostLispFunction handler, int code) {
    Plugin* const owner = caller();
    m_handlers[{owner, code}] = handler;
    for (auto& [name, function] : m_functions) {
        for (PluginFunction& known : function.definitions) {
            if (known.plugin == owner && known.code == code) known.handler = handler;
        }
    }
    return true;
}

bool Documents::undefine(const std::wstring& name) {
    return m_current && undefine(*m_current, toLower(name), caller());
}

bool Documents::undefine(HostDocument& document, const std::wstring& key, const Plugin* owner) {
    if (!document.functions.erase({key, owner})) return false;
    const auto knows = [&](const auto& other) { return other->functions.contains({key, owner}); };
    if (std::any_of(m_documents.begin(), m_documents.end(), knows)) return true;
    std::vector<PluginFunction>& definitions = m_functions[key].definitions;
    std::erase_if(definitions, [=](const auto& known) { return known.plugin == owner; });
    if (definitions.empty()) m_lisp.undefine(lispText(key));
    return true;
}

Plugin* Documents::caller() const {
    if (m_told) return m_told;
    const CallFrame* frame = CallFrame::current();
    return frame ? frame->plugin() : nullptr;
}

void Documents::addReactor(HostDocManagerReactor* reactor) { m_reactors.push_back(reactor); }

void Documents::removeReactor(HostDocManagerReactor* reactor) { std::erase(m_reactors, reactor); }

void Documents::tell(Plugin& plugin, PluginMessage message) {
    Plugin* outer = std::exchange(m_told, &plugin);
    plugin.send(message);
    m_told = outer;
}

void Documents::tellOfDocument(HostDocument& document, Plugin& plugin, PluginMessage message) {
    HostDocument* outer = std::exchange(m_current, &document);
    tell(plugin, message);
    m_current = outer;
}

void Documents::forgetFunctionsOf(const Plugin& plugin) {
    for (const auto& document : m_documents) {
        for (const auto& [name, owner] : std::set(document->functions)) {
            if (owner == &plugin) undefine(*document, name, owner);
        }
    }
    std::erase_if(m_handlers, [&](const auto& entry) { return entry.first.first == &plugin; });
}

Documents& documents() {
    static Documents& instance = *new Documents(host().lisp());
    return instance;
}
