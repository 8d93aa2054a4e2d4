#include "src/shell/DialogSource.h"

#include <memory>
#include <type_traits>
#include <vector>

#include "src/platform/base/AddOns.h"
#include "src/platform/base/DialogResources.h"
#include "src/shell/Module.h"
#include "src/shell/ResourceFolder.h"

namespace {

int idForNameIn(HMODULE module, const CString& name) {
    int found = -1;
    findString(module, FIRST_KEY_LIST_ID, LAST_KEY_LIST_ID, [&](UINT id, std::wstring_view text) {
        if (!equalIgnoringCase(keyListName(text), name)) return false;
        found = static_cast<int>(id);
        return true;
    });
    return found;
}

void addNamesOf(HMODULE module, CStringArray& names) {
    findString(module, FIRST_KEY_LIST_ID, LAST_KEY_LIST_ID, [&](UINT, std::wstring_view text) {
        if (const auto name = keyListName(text); !name.empty()) names.emplace_back(name);
        return false;
    });
}

struct FreeModule {
    void operator()(HMODULE module) const { FreeLibrary(module); }
};
using AddOn = std::unique_ptr<std::remove_pointer_t<HMODULE>, FreeModule>;

std::vector<AddOn> loadAddOns() {
    std::vector<AddOn> modules;
    for (const auto& path : addOnPaths(folderOf(modulePath(g_moduleInstance)))) {
        AddOn module(
            LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE));
        if (module) modules.push_back(std::move(module));
    }
    return modules;
}

// Freed when the plug-in is unloaded.
const std::vector<AddOn>& addOns() {
    static const std::vector<AddOn> modules = loadAddOns();
    return modules;
}

}  // namespace

std::optional<KeyListText> DialogSource::keyList() const {
    return parseKeyList(loadString(keyLists, id, KEY_LIST_CHARS + 1));
}

std::optional<KeyListText> DialogSource::spelledKeyList() const {
    return splitKeyList(loadString(keyLists, id, KEY_LIST_CHARS + 1));
}

int dialogIdForName(const CString& name) { return idForNameIn(g_moduleInstance, name); }

std::optional<DialogSource> findDialog(const CString& name) {
    if (const int id = dialogIdForName(name); id >= 0) return DialogSource{id, g_moduleInstance, nullptr};
    for (const AddOn& addOn : addOns())
        if (const int id = idForNameIn(addOn.get(), name); id >= 0)
            return DialogSource{id, addOn.get(), addOn.get()};
    return std::nullopt;
}

CStringArray dialogNames() {
    CStringArray names;
    addNamesOf(g_moduleInstance, names);
    for (const AddOn& addOn : addOns()) addNamesOf(addOn.get(), names);
    return names;
}
