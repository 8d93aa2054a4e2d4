// Modules of managed code, which in this host are native ones that lie beside its executable.
#include "host/services/DataModule.h"
#include "src/platform/host/HostServices.h"

namespace {

class ManagedHost : public HostManagedHost {
  public:
    void notCalled() override {}
    int32_t loadModule(const wchar_t* fileName) override { return loadManagedModule(fileName); }
};

}  // namespace

HostManagedHost* hostGetManagedHost() {
    static ManagedHost host;
    return &host;
}
