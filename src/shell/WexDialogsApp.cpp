#include "src/shell/WexDialogsApp.h"

#include "src/platform/host/HostPlugin.h"
#include "src/shell/Module.h"
#include "src/shell/ResourceScope.h"

namespace {

HostDynamicLinker* dynamicLinker() {
    HostService* service = hostSysRegistry()->at(L"DynamicLinker");
    if (!service || !service->isKindOf(HostDynamicLinker::className)) return nullptr;
    return static_cast<HostDynamicLinker*>(service);
}

}  // namespace

int32_t HostPluginApp::onInitApp(void*) {
    moduleInstance = g_moduleInstance;
    if (HostDynamicLinker* linker = dynamicLinker()) {
        if (unlockable) linker->allowUnload(moduleInstance);
        if (mdiAware) linker->worksWithSeveralDocuments(moduleInstance);
    }
    return registerServerComponents();
}

int32_t WexHostPluginApp::onLoadDocument(void*) {
    defineFunctions(m_table);
    return 0;
}

int32_t WexHostPluginApp::onUnloadDocument(void*) {
    undefineFunctions(m_table);
    return 0;
}

int32_t WexHostPluginApp::onInvokeFunction(void*) {
    invokeFunction(m_table, hostGetFunCode());
    return 0;
}

int32_t CWexDialogsApp::onInitApp(void* packet) {
    const int32_t result = WexHostPluginApp::onInitApp(packet);
    const ResourceScope scope;
    g_buttonCaptionA = currentText(TEXT_BUTTON_CAPTION_A);
    g_buttonCaptionB = currentText(TEXT_BUTTON_CAPTION_A);
    g_buttonCaptionC = currentText(TEXT_BUTTON_CAPTION_C);
    g_buttonCaptionD = currentText(TEXT_BUTTON_CAPTION_D);
    return result;
}

int32_t dispatchMessage(HostDbPluginApp& app, int32_t message, void* packet) {
    using Operation = int32_t (HostDbPluginApp::*)(void*);
    static constexpr Operation operations[] = {
        &HostDbPluginApp::onNullMessage,    &HostDbPluginApp::onInitApp,
        &HostDbPluginApp::onUnloadApp,      &HostDbPluginApp::onLoadDocument,
        &HostDbPluginApp::onUnloadDocument, &HostDbPluginApp::onInvokeFunction,
        &HostDbPluginApp::onMessage6,       &HostDbPluginApp::onMessage7,
        &HostDbPluginApp::onMessage8,       &HostDbPluginApp::onMessage9,
        &HostDbPluginApp::onMessage10,      &HostDbPluginApp::onMessage11,
        &HostDbPluginApp::onMessage12,      &HostDbPluginApp::onMessage13,
        &HostDbPluginApp::onMessage14,      &HostDbPluginApp::onMessage15,
    };
    if (static_cast<uint32_t>(message) >= std::size(operations)) return 0;
    return (app.*operations[message])(packet);
}
