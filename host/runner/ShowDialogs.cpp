#include "host/runner/ShowDialogs.h"

#include <algorithm>

#include "host/runner/DialogKinds.h"
#include "host/runner/ResourceModules.h"
#include "host/services/Host.h"
#include "src/platform/base/DialogResources.h"
#include "src/platform/base/KeyListText.h"
#include "src/platform/base/Text.h"

namespace {

using Table = std::vector<std::vector<std::wstring>>;

// Columns below each other, two blanks apart.
void print(const Table& table) {
    std::vector<size_t> widths;
    for (const auto& row : table) {
        widths.resize(std::max(widths.size(), row.size()));
        for (size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
    }
    for (const auto& row : table) {
        std::wstring line;
        for (size_t i = 0; i < row.size(); ++i)
            line += row[i] + std::wstring(widths[i] - row[i].size() + 2, L' ');
        host().console().print(trimBlanksRight(line) + L"\n");
    }
}

struct ShownDialog {
    std::wstring name;
    KeyListText keys;
    const DialogTemplate* layout = nullptr;  // null where there is none
    const ResourceModule* module = nullptr;  // of the key list
};

// In the order in which the plug-in looks for a name, which is why the first one of a name counts.
std::vector<ShownDialog> dialogsOf(const std::vector<ResourceModule>& modules) {
    std::vector<ShownDialog> dialogs;
    const auto isKnown = [&](const std::wstring& name) {
        return std::any_of(dialogs.begin(), dialogs.end(),
                           [&](const ShownDialog& known) { return equalIgnoringCase(known.name, name); });
    };
    for (const ResourceModule& module : modules)
        for (const auto& [id, text] : module.keyLists) {
            const auto keys = parseKeyList(text);
            const std::wstring name(keyListName(text));
            if (!keys || isKnown(name)) continue;
            ShownDialog dialog{name, *keys, nullptr, &module};
            for (const ResourceModule& other : modules) {
                const auto at = other.templates.find(id);
                const bool isMine = &other == &module || (other.isProducts() && module.isProducts());
                if (isMine && at != other.templates.end() && at->second) dialog.layout = &*at->second;
            }
            dialogs.push_back(std::move(dialog));
        }
    return dialogs;
}

void printNames(const std::vector<ShownDialog>& dialogs) {
    Table table;
    for (const ShownDialog& dialog : dialogs)
        table.push_back({dialog.name, dialog.layout ? dialog.layout->title : L"(no template)",
                         dialog.module->isProducts() ? L"" : dialog.module->name});
    print(table);
}

std::wstring keyOf(const KeyListText& list, int id) {
    for (size_t i = 0; i < list.keys.size(); ++i)
        if (!list.keys[i].empty() && controlIdOfKey(list.keys[i], i) == id) {
            std::wstring key = list.keys[i];
            std::transform(key.begin(), key.end(), key.begin(),
                           [](wchar_t c) { return static_cast<wchar_t>(std::towupper(c)); });
            return key;
        }
    return L"-";
}

void printTiles(const ShownDialog& dialog, const std::vector<IconCaption>& captions) {
    host().console().print(dialog.name + (dialog.layout ? L": " + dialog.layout->title : L": no template") +
                           L"\n");
    if (!dialog.layout) return;
    Table table;
    for (const DialogTemplateControl& control : dialog.layout->controls)
        table.push_back({L" " + keyOf(dialog.keys, control.id), std::to_wstring(control.id),
                         kindWord(control, captions), control.text});
    print(table);
}

}  // namespace

int showDialogs(std::span<const std::wstring> names) {
    const ResourceModules modules = loadResourceModules({});
    const std::vector<ShownDialog> dialogs = dialogsOf(modules.asked);
    if (names.empty()) printNames(dialogs);
    const std::vector<IconCaption> captions = iconCaptions();
    int status = 0;
    for (const std::wstring& name : names) {
        const auto at = std::find_if(dialogs.begin(), dialogs.end(), [&](const ShownDialog& dialog) {
            return equalIgnoringCase(dialog.name, name);
        });
        if (at == dialogs.end()) {
            host().console().error(L"wexhost: there is no dialog " + name +
                                   L"; wexhost --dialogs lists them all");
            status = 1;
        } else {
            printTiles(*at, captions);
        }
    }
    return status;
}
