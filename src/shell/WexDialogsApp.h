// The plug-in as the host's messages see it.
#pragma once

#include <windows.h>

#include "src/shell/LispTable.h"

// The root of the application classes: the operations behind the host's messages, all doing nothing.
class HostDbPluginApp {
  public:
    virtual ~HostDbPluginApp() = default;

    virtual int32_t onInitApp(void*) { return 0; }
    virtual int32_t onUnloadApp(void*) { return 0; }
    virtual int32_t onLoadDocument(void*) { return 0; }
    virtual int32_t onUnloadDocument(void*) { return 0; }
    virtual int32_t onInvokeFunction(void*) { return 0; }
    // The messages that this plug-in has no answer to: 6 to 15 in order, and the null message in the last
    // place.
    virtual int32_t onMessage6(void*) { return 0; }
    virtual int32_t onMessage7(void*) { return 0; }
    virtual int32_t onMessage8(void*) { return 0; }
    virtual int32_t onMessage9(void*) { return 0; }
    virtual int32_t onMessage10(void*) { return 0; }
    virtual int32_t onMessage11(void*) { return 0; }
    virtual int32_t onMessage12(void*) { return 0; }
    virtual int32_t onMessage13(void*) { return 0; }
    virtual int32_t onMessage14(void*) { return 0; }
    virtual int32_t onMessage15(void*) { return 0; }
    virtual int32_t onNullMessage(void*) { return 0; }
    virtual int32_t registerServerComponents() { return 0; }
};

// Knows its module and tells the host what the module can stand.
class HostPluginApp : public HostDbPluginApp {
  public:
    int32_t onInitApp(void* packet) override;

  protected:
    HMODULE moduleInstance = nullptr;
    bool unlockable = true;
    bool mdiAware = true;
};

// Registers the plug-in's Lisp functions for each document. A plug-in of this host could bring commands and
// custom classes as well; this one brings none.
class WexHostPluginApp : public HostPluginApp {
  public:
    explicit WexHostPluginApp(LispTable table) : m_table(table) {}

    int32_t onLoadDocument(void* packet) override;
    int32_t onUnloadDocument(void* packet) override;
    int32_t onInvokeFunction(void* packet) override;

  private:
    LispTable m_table;
};

class CWexDialogsApp : public WexHostPluginApp {
  public:
    using WexHostPluginApp::WexHostPluginApp;

    int32_t onInitApp(void* packet) override;
};

// Gives the host's message to the operation behind it; unknown ones, and all below 0, give 0.
int32_t dispatchMessage(HostDbPluginApp& app, int32_t message, void* packet);
