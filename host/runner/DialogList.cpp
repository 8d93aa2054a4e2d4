#include "host/runner/DialogList.h"

#include <algorithm>
#include <cwctype>

#include "src/platform/base/DialogResources.h"
#include "src/platform/base/Text.h"

std::wstring ListedDialog::keyOf(int id) const {
    for (size_t i = 0; i < keys.keys.size(); ++i)
        if (!keys.keys[i].empty() && controlIdOfKey(keys.keys[i], i) == id) {
            std::wstring key = keys.keys[i];
            std::transform(key.begin(), key.end(), key.begin(),
                           [](wchar_t c) { return static_cast<wchar_t>(std::towupper(c)); });
            return key;
        }
    return {};
}

std::vector<ListedDialog> listDialogs(const std::vector<ResourceModule>& modules) {
    std::vector<ListedDialog> dialogs;
    const auto isKnown = [&](const std::wstring& name) {
        return std::any_of(dialogs.begin(), dialogs.end(),
                           [&](const ListedDialog& known) { return equalIgnoringCase(known.name, name); });
    };
    for (const ResourceModule& module : modules)
        for (const auto& [id, text] : module.keyLists) {
            const auto keys = parseKeyList(text);
            const std::wstring name(keyListName(text));
            if (!keys || isKnown(name)) continue;
            ListedDialog dialog{name, *keys, nullptr, &module};
            for (const ResourceModule& other : modules) {
                const auto at = other.templates.find(id);
                const bool isMine = &other == &module || (other.isProducts() && module.isProducts());
                if (isMine && at != other.templates.end() && at->second) dialog.layout = &*at->second;
            }
            dialogs.push_back(std::move(dialog));
        }
    return dialogs;
}
