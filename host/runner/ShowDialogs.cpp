#include "host/runner/ShowDialogs.h"

#include <algorithm>

#include "host/runner/DialogKinds.h"
#include "host/runner/DialogList.h"
#include "host/runner/ResourceModules.h"
#include "host/services/Host.h"
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

void printNames(const std::vector<ListedDialog>& dialogs) {
    Table table;
    for (const ListedDialog& dialog : dialogs)
        table.push_back({dialog.name, dialog.layout ? dialog.layout->title : L"(no template)",
                         dialog.module->isProducts() ? L"" : dialog.module->name});
    print(table);
}

std::wstring keyOrDash(const std::wstring& key) { return key.empty() ? L"-" : key; }

void printTiles(const ListedDialog& dialog, const std::vector<IconCaption>& captions) {
    host().console().print(dialog.name + (dialog.layout ? L": " + dialog.layout->title : L": no template") +
                           L"\n");
    if (!dialog.layout) return;
    Table table;
    for (const DialogTemplateControl& control : dialog.layout->controls)
        table.push_back({L" " + keyOrDash(dialog.keyOf(control.id)), std::to_wstring(control.id),
                         kindWord(control, captions), control.text});
    print(table);
}

}  // namespace

std::vector<std::wstring> dialogNames() {
    const ResourceModules modules = loadResourceModules({});
    std::vector<std::wstring> names;
    for (const ListedDialog& dialog : listDialogs(modules.asked))
        if (dialog.layout) names.push_back(dialog.name);
    return names;
}

int showDialogs(std::span<const std::wstring> names) {
    const ResourceModules modules = loadResourceModules({});
    const std::vector<ListedDialog> dialogs = listDialogs(modules.asked);
    if (names.empty()) printNames(dialogs);
    const std::vector<IconCaption> captions = iconCaptions();
    int status = 0;
    for (const std::wstring& name : names) {
        const auto at = std::find_if(dialogs.begin(), dialogs.end(), [&](const ListedDialog& dialog) {
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
