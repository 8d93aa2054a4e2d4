// A loaded plug-in module and the calls that the host makes into it.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "src/platform/host/HostPlugin.h"

class Plugin {
  public:
    // Loads the module and finds its exports; sends nothing yet. Throws lisp::Error saying what is wrong with
    // it.
    explicit Plugin(const std::wstring& path);
    ~Plugin() { FreeLibrary(m_module); }
    Plugin(const Plugin&) = delete;
    Plugin& operator=(const Plugin&) = delete;

    HMODULE module() const { return m_module; }
    // The file's name without its folder.
    const std::wstring& name() const { return m_name; }

    // Sends a message; what the plug-in throws is an error on the console, and failure. 0 means success.
    int32_t send(PluginMessage message);

    // As PLUGIN_FIND_WINDOW in HostPlugin.h; null where the plug-in doesn't export it.
    HWND findWindow(const wchar_t* dialog, const wchar_t* key, int32_t id) const;

    // As PLUGIN_LISP_SIGNATURE in HostPlugin.h; none where the plug-in doesn't export it.
    std::vector<std::wstring> signatures() const;

    // As PLUGIN_NAME_WINDOW there; empty where the plug-in doesn't export it.
    std::wstring nameOfWindow(HWND window) const;

    void allowUnload() { m_unloadable = true; }
    bool isUnloadable() const { return m_unloadable; }
    void allowSeveralDocuments() { m_severalDocuments = true; }
    bool worksWithSeveralDocuments() const { return m_severalDocuments; }

  private:
    using EntryPoint = int32_t (*)(int32_t message, void* packet);
    using ApiVersion = uint32_t (*)();
    using FindTileWindow = HWND (*)(const wchar_t* dialog, const wchar_t* key, int32_t id);
    using LispSignature = const wchar_t* (*)(int32_t index);
    using NameWindow = int32_t (*)(HWND window, wchar_t* name, int32_t size);

    std::wstring m_name;
    HMODULE m_module;
    EntryPoint m_entry = nullptr;
    FindTileWindow m_findWindow = nullptr;
    LispSignature m_lispSignature = nullptr;
    NameWindow m_nameWindow = nullptr;
    bool m_unloadable = false;
    bool m_severalDocuments = false;
};
