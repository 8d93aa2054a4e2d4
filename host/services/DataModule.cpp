#include "host/services/DataModule.h"

#include <windows.h>

#include <string>

#include "host/lisp/Error.h"
#include "host/services/Host.h"
#include "host/services/ProgramFolder.h"
#include "host/services/Texts.h"

namespace {

void (*g_listener)(HostText line) = nullptr;

// What a record table asks for fails without a word to its program.
void reportFailure(HostText line) {
    host().console().error({line.text, line.length});
    if (g_listener) g_listener(line);
}

}  // namespace

void setDataFailureListener(void (*listener)(HostText line)) { g_listener = listener; }

int32_t loadManagedModule(const wchar_t* fileName) {
    const std::wstring path = (programFolder() / fileName).wstring();
    // What the module needs may lie beside it.
    if (!LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)) {
        const DWORD error = GetLastError();
        return error ? static_cast<int32_t>(error) : ERROR_MOD_NOT_FOUND;
    }
    if (DataAccess* const access = loadedDataAccess()) access->setReporter(&reportFailure);
    return 0;
}

DataAccess* loadedDataAccess() {
    const HMODULE module = GetModuleHandleW(DATA_STORE_MODULE);
    if (!module) return nullptr;
    const auto entry = reinterpret_cast<DataAccessEntry>(GetProcAddress(module, DATA_ACCESS_ENTRY));
    return entry ? entry() : nullptr;
}

DataAccess& dataAccess() {
    DataAccess* access = loadedDataAccess();
    if (!access && loadManagedModule(DATA_STORE_MODULE) == 0) access = loadedDataAccess();
    if (!access) throw lisp::Error(u"there is no data store: can't load " + lispText(DATA_STORE_MODULE));
    return *access;
}
