#include "src/shell/DialogSource.h"

#include <algorithm>
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

std::vector<HMODULE> loadAddOns() {
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
    std::vector<HMODULE> modules;
    for (const std::wstring& name : names)
        if (const HMODULE module = LoadLibraryExW((folder + name).c_str(), nullptr,
                                                  LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE))
            modules.push_back(module);
    return modules;
}

const std::vector<HMODULE>& addOns() {
    static const std::vector<HMODULE> modules = loadAddOns();
    return modules;
}

}  // namespace

std::optional<KeyListText> DialogSource::keyList() const { return parseKeyList(loadString(keyLists, id)); }

int dialogIdForName(const CString& name) { return idForNameIn(g_moduleInstance, name); }

std::optional<DialogSource> findDialog(const CString& name) {
    if (const int id = dialogIdForName(name); id >= 0) return DialogSource{id, g_moduleInstance, nullptr};
    for (const HMODULE addOn : addOns())
        if (const int id = idForNameIn(addOn, name); id >= 0) return DialogSource{id, addOn, addOn};
    return std::nullopt;
}
