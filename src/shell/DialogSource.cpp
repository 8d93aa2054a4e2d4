#include "src/shell/DialogSource.h"

#include <algorithm>
#include <memory>
#include <type_traits>
#include <vector>

#include "src/shell/KeyList.h"
#include "src/shell/Module.h"
#include "src/shell/ResourceFolder.h"

namespace {

constexpr wchar_t ADD_ON_FOLDER[] = L"WexDialogs.d\\";

int idForNameIn(HMODULE module, const CString& name) {
    for (int id = FIRST_KEY_LIST_ID; id <= LAST_KEY_LIST_ID; ++id) {
        const std::wstring_view text = stringView(module, id);
        if (!text.empty() && equalIgnoringCase(keyListName(text), name)) return id;
    }
    return -1;
}

struct FreeModule {
    void operator()(HMODULE module) const { FreeLibrary(module); }
};
using AddOn = std::unique_ptr<std::remove_pointer_t<HMODULE>, FreeModule>;

std::vector<AddOn> loadAddOns() {
    const std::wstring path = modulePath(g_moduleInstance);
    const std::wstring folder = folderOf(path) + ADD_ON_FOLDER;
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((folder + L"*.dll").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return {};
    do names.push_back(found.cFileName);
    while (FindNextFileW(search, &found));
    FindClose(search);
    std::sort(names.begin(), names.end(),
              [](const auto& a, const auto& b) { return toLower(a) < toLower(b); });
    std::vector<AddOn> modules;
    for (const std::wstring& name : names) {
        AddOn module(LoadLibraryExW((folder + name).c_str(), nullptr,
                                    LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE));
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

std::optional<KeyListText> DialogSource::keyList() const { return parseKeyList(loadString(keyLists, id)); }

int dialogIdForName(const CString& name) { return idForNameIn(g_moduleInstance, name); }

std::optional<DialogSource> findDialog(const CString& name) {
    if (const int id = dialogIdForName(name); id >= 0) return DialogSource{id, g_moduleInstance, nullptr};
    for (const AddOn& addOn : addOns())
        if (const int id = idForNameIn(addOn.get(), name); id >= 0)
            return DialogSource{id, addOn.get(), addOn.get()};
    return std::nullopt;
}
