// The open documents, the plug-ins, and the Lisp functions that plug-ins define in each document.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "host/documents/CallFrame.h"
#include "host/documents/Database.h"
#include "host/documents/Plugin.h"
#include "host/lisp/Interpreter.h"
#include "src/platform/host/HostPlugin.h"

// What the next entity is made with, and in which block.
struct DrawingPen {
    std::u16string block = cad::MODEL_SPACE;
    uint32_t layer = 0;
    cad::ColorIndex color = cad::BY_LAYER;
    cad::LinePattern pattern = cad::LinePattern::continuous;
    float width = 1.0f;
};

// A drawing that is open, with the names in lower case of the Lisp functions that plug-ins defined in it.
class HostDocument {
  public:
    std::set<std::pair<std::wstring, const Plugin*>> functions;
    Database database;
    DrawingPen pen;
};

class Documents final : public HostDocManager {
  public:
    explicit Documents(lisp::Interpreter& lisp) : m_lisp(lisp) {}

    // Opens an empty document, makes it the current one and tells the plug-ins. Throws lisp::Error where a
    // loaded plug-in can't work with several documents.
    void open();
    // Closes the current document; the one opened before it becomes current. False where none is open.
    bool close();
    size_t count() const { return m_documents.size(); }
    // Null where none is open.
    HostDocument* current() const { return m_current; }

    // Loads a plug-in, readies it and tells it of the open documents. Where another plug-in has functions of
    // the same names, those of the new one count until it is unloaded. Throws lisp::Error, also where it is
    // loaded already.
    void loadPlugin(const std::wstring& path);
    // Unloads the plug-in of that file name, in any case; the one that was loaded last where it is empty.
    // Throws lisp::Error where there is none, or it doesn't allow it, or one of its functions is being
    // called.
    void unloadPlugin(const std::wstring& name);
    // Null where the module is none of the loaded plug-ins.
    Plugin* pluginOf(HMODULE module) const;
    // Unloads all plug-ins and closes all documents, at the end of the process.
    void closeAll();

    // The window that a plug-in knows under this address; see PLUGIN_FIND_WINDOW in HostPlugin.h.
    HWND findWindow(const wchar_t* dialog, const wchar_t* key, int32_t id) const;

    // The dialog of the plug-ins' that came last; null for none.
    HWND newestDialog() const { return findWindow(nullptr, nullptr, -1); }

    // What the functions of the plug-ins take, as far as the plug-ins tell.
    std::vector<std::wstring> signatures() const;

    // The key of a tile's window or the name of a dialog, see PLUGIN_NAME_WINDOW there; empty for none.
    std::wstring nameOfWindow(HWND window) const;

    // What hostDefun, hostRegFunc and hostUndef do, on behalf of the plug-in that is being told something or
    // called. One plug-in can't undefine what is another's.
    bool define(const std::wstring& name, int code);
    bool bind(HostLispFunction handler, int code);
    bool undefine(const std::wstring& name);

    void addReactor(HostDocManagerReactor* reactor) override;
    void removeReactor(HostDocManagerReactor* reactor) override;

  private:
    void tell(Plugin& plugin, PluginMessage message);
    void tellOfDocument(HostDocument& document, Plugin& plugin, PluginMessage message);
    Plugin* caller() const;
    bool undefine(HostDocument& document, const std::wstring& key, const Plugin* owner);
    void forgetFunctionsOf(const Plugin& plugin);

    lisp::Interpreter& m_lisp;
    std::vector<std::unique_ptr<Plugin>> m_plugins;
    std::vector<std::unique_ptr<HostDocument>> m_documents;
    std::vector<HostDocManagerReactor*> m_reactors;
    HostDocument* m_current = nullptr;
    Plugin* m_told = nullptr;
    // By name in lower case. The interpreter refers to them, so none is ever removed. And the handlers that
    // were bound before or after.
    std::map<std::wstring, LispFunction> m_functions;
    std::map<std::pair<Plugin*, int>, HostLispFunction> m_handlers;
};

// Those of the process; made at the first question and never destroyed, since plug-ins reach them until it
// ends.
Documents& documents();
