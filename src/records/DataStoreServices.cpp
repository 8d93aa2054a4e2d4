#include "src/records/DataStoreServices.h"

#include "src/platform/host/HostServices.h"

HostDataStoreServices* g_dataStoreServices = nullptr;

namespace {

HMODULE loadDataStore() {
    HostManagedHost* managed = hostGetManagedHost();
    if (!managed || managed->loadModule(DATA_STORE_MODULE) != 0) return nullptr;
    return GetModuleHandleW(DATA_STORE_MODULE);
}

}  // namespace

HostDataStoreServices* dataStoreServices() {
    if (g_dataStoreServices) return g_dataStoreServices;
    const HMODULE module = loadDataStore();
    if (!module) {
        hostPrintf(L"Unable to load module [%s].\n", DATA_STORE_MODULE);
        return nullptr;
    }
    const auto entry = reinterpret_cast<HostDataStoreEntry>(GetProcAddress(module, DATA_STORE_ENTRY));
    if (entry) g_dataStoreServices = entry();
    return g_dataStoreServices;
}

HostDataStore* newDataStore() {
    HostDataStoreServices* services = dataStoreServices();
    return services ? services->GetStore() : nullptr;
}
