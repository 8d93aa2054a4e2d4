// The dialogs that modules bring, by name.
#pragma once

#include <string>
#include <vector>

#include "host/runner/ResourceModules.h"
#include "src/platform/base/KeyListText.h"

struct ListedDialog {
    std::wstring name;
    KeyListText keys;
    const DialogTemplate* layout = nullptr;  // null where there is none
    const ResourceModule* module = nullptr;  // of the key list

    // The key in capitals of the control with that id; empty where it has none.
    std::wstring keyOf(int id) const;
};

// In the order in which the plug-in looks for a name, which is why the first one of a name counts. They refer
// to the modules.
std::vector<ListedDialog> listDialogs(const std::vector<ResourceModule>& modules);
