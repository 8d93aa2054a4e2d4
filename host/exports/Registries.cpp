// The host's service registry and its document manager, as HostPlugin.h declares them.
#include "host/documents/Documents.h"
#include "host/documents/Plugin.h"
#include "host/services/Host.h"
#include "src/platform/base/Text.h"
#include "src/platform/host/HostPlugin.h"

namespace {

class DynamicLinker : public HostDynamicLinker {
  public:
    bool isKindOf(const wchar_t* className) const override {
        return std::wstring_view(className) == HostDynamicLinker::className;
    }
    void allowUnload(HMODULE plugin) override {
        if (Plugin* known = documents().pluginOf(plugin)) known->allowUnload();
    }
    void worksWithSeveralDocuments(HMODULE plugin) override {
        if (Plugin* known = documents().pluginOf(plugin)) known->allowSeveralDocuments();
    }
};

class CommandStack : public HostCommandStack {
  public:
    bool isKindOf(const wchar_t* className) const override {
        return std::wstring_view(className) == HostCommandStack::className;
    }
};

class ServiceRegistry : public HostServiceRegistry {
  public:
    HostService* at(const wchar_t* name) override {
        if (equalIgnoringCase(name, L"DynamicLinker")) return &m_linker;
        if (equalIgnoringCase(name, L"KRVL_REGISTERED_COMMANDS")) return &m_commands;
        return nullptr;
    }

  private:
    DynamicLinker m_linker;
    CommandStack m_commands;
};

}  // namespace

HostServiceRegistry* hostSysRegistry() {
    static ServiceRegistry& registry = *new ServiceRegistry;
    return &registry;
}

HostDocManager* hostDocManager() { return &documents(); }
