// Modules of managed code, which in this host are native ones that lie beside its executable.
#include "host/services/ProgramFolder.h"
#include "src/platform/host/HostServices.h"

namespace {

class ManagedHost : public HostManagedHost {
  public:
    void notCalled() override {}

    int32_t loadModule(const wchar_t* fileName) override {
        const std::wstring path = (programFolder() / fileName).wstring();
        // What the module needs may lie beside it.
        if (LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)) return 0;
        const DWORD error = GetLastError();
        return error ? static_cast<int32_t>(error) : ERROR_MOD_NOT_FOUND;
    }
};

}  // namespace

HostManagedHost* hostGetManagedHost() {
    static ManagedHost host;
    return &host;
}
