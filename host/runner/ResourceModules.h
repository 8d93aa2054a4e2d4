// Modules read as data: the key lists and dialog templates that they bring.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "host/runner/DialogKinds.h"
#include "src/platform/base/DialogTemplate.h"

struct ResourceModule {
    struct Free {
        void operator()(HMODULE module) const { FreeLibrary(module); }
    };

    std::wstring name;  // without the folder
    std::unique_ptr<std::remove_pointer_t<HMODULE>, Free> handle;
    std::map<int, std::wstring> keyLists;
    // The bytes live as long as the module; nothing where they can't be understood.
    std::map<int, std::optional<DialogTemplate>> templates;

    // Nothing where the string is missing.
    std::wstring text(int id) const;
    // One of the two that the product's own dialogs lie in.
    bool isProducts() const;
};

struct ResourceModules {
    std::vector<ResourceModule> asked;
    // Those in place beside the running program, but for those asked for and namesakes of theirs.
    std::vector<ResourceModule> inPlace;
    // The paths of those asked for that can't be loaded.
    std::vector<std::wstring> missing;
};

// The bytes of the module's dialog template with that id, as long as the module lives; none where it is
// missing.
std::span<const uint8_t> templateBytes(const ResourceModule& module, int id);

// The captions that become icons, as the product's resource module beside the running program tells them;
// none where it is missing.
std::vector<IconCaption> iconCaptions();

// Loads the modules of those paths; with none given, those in place. One of the product's two brings the
// other from its folder.
ResourceModules loadResourceModules(std::span<const std::wstring> paths);
