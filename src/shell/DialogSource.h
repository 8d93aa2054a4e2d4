// Where a dialog's key list and template lie: in the product's own modules or in an add-on.
#pragma once

#include <windows.h>

#include <optional>

#include "src/platform/base/CString.h"
#include "src/platform/base/KeyListText.h"

struct DialogSource {
    // The string id of the key list and the id of the template.
    int id = -1;
    // The module of the key list.
    HMODULE keyLists = nullptr;
    // The module of the template; null means the class library's resource search.
    HMODULE templates = nullptr;

    // Name and keys in lower case; nothing where the string is no key list.
    std::optional<KeyListText> keyList() const;
    // The same as they are spelled.
    std::optional<KeyListText> spelledKeyList() const;
};

// The id of the key list with that name, in any case, in the plug-in's own table; -1 where there is none.
int dialogIdForName(const CString& name);

// The plug-in's own dialog of that name, or the first add-on's: the modules in the folder "WexDialogs.d"
// beside the plug-in, in the order of their file names, are loaded at the first look-up that needs them.
std::optional<DialogSource> findDialog(const CString& name);

// The names of all dialogs, as they are spelled.
CStringArray dialogNames();
