// What the host asks of a plug-in module, and the objects through which a plug-in reaches the host's
// registries. Objects cross as abstract classes; neither side deletes what the other made.
#pragma once

#include <windows.h>

#include "src/platform/host/HostApi.h"

// A plug-in exports these two by name.
//   int32_t  pluginEntryPoint(int32_t message, void* packet)   0 means success
//   uint32_t pluginGetApiVersion()                              HOST_API_VERSION of its build
// and may export, for automation,
//   HWND     pluginFindWindow(const wchar_t* dialog, const wchar_t* key, int32_t id)
//            the window of a tile of the newest running dialog of that name (any case; null: of any name), by
//            `key` or, where that is null, by control id; the dialog's own window where `key` is null and
//            `id` is -1. Null where there is none. Who asks is about to look at the window or to work it, so
//            all that the plug-in has held back from the screen is drawn first.
//   int32_t  pluginNameWindow(HWND window, wchar_t* name, int32_t size)
//            the other way round: the key of a tile's window, or the name of a running dialog, in `name` with
//            room for `size` characters. The result is its length; 0 where the window has none, or no room.
// and, for tools that read programs,
//   const wchar_t* pluginLispSignature(int32_t index)
//            the name and the arguments of a Lisp function, as src/LispSignatures.h has them; null past the
//            last.
constexpr const char* PLUGIN_ENTRY_POINT = "pluginEntryPoint";
constexpr const char* PLUGIN_GET_API_VERSION = "pluginGetApiVersion";
constexpr const char* PLUGIN_FIND_WINDOW = "pluginFindWindow";
constexpr const char* PLUGIN_LISP_SIGNATURE = "pluginLispSignature";
constexpr const char* PLUGIN_NAME_WINDOW = "pluginNameWindow";

enum PluginMessage : int32_t {
    PLUGIN_NULL = 0,
    PLUGIN_INIT = 1,
    PLUGIN_UNLOAD = 2,
    PLUGIN_LOAD_DOCUMENT = 3,
    PLUGIN_UNLOAD_DOCUMENT = 4,
    PLUGIN_INVOKE_FUNCTION = 5,  // hostGetFunCode tells which
};

// An object of the host's service registry. Its class is asked by name.
class HostService {
  public:
    virtual bool isKindOf(const wchar_t* className) const = 0;

  protected:
    ~HostService() = default;
};

// Registered as "DynamicLinker".
class HostDynamicLinker : public HostService {
  public:
    static constexpr const wchar_t* className = L"HostDynamicLinker";
    virtual void allowUnload(HMODULE plugin) = 0;
    virtual void worksWithSeveralDocuments(HMODULE plugin) = 0;
};

// Registered as "KRVL_REGISTERED_COMMANDS".
class HostCommandStack : public HostService {
  public:
    static constexpr const wchar_t* className = L"HostCommandStack";
};

class HostServiceRegistry {
  public:
    // The service of that name, or null.
    virtual HostService* at(const wchar_t* name) = 0;

  protected:
    ~HostServiceRegistry() = default;
};

// Lives as long as the process.
HOST_API HostServiceRegistry* hostSysRegistry();

class HostDocument;

// Told of documents by the document manager. The plug-in owns it and takes it out before it deletes it.
class HostDocManagerReactor {
  public:
    virtual void documentToBeDestroyed(HostDocument* document) = 0;

  protected:
    ~HostDocManagerReactor() = default;
};

class HostDocManager {
  public:
    virtual void addReactor(HostDocManagerReactor* reactor) = 0;
    virtual void removeReactor(HostDocManagerReactor* reactor) = 0;

  protected:
    ~HostDocManager() = default;
};

// Lives as long as the process, also while plug-ins are being unloaded.
HOST_API HostDocManager* hostDocManager();
