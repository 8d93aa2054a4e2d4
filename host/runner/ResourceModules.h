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

#include "host/runner/DialogTemplate.h"

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
};

// The product's resource module beside the running program; nothing where it is missing.
std::optional<ResourceModule> ownResourceModule();

// Loads the modules; with none given, the product's own beside the running program. The path of the first
// that can't be loaded comes back in `missing`.
std::vector<ResourceModule> loadResourceModules(std::span<const std::wstring> paths, std::wstring& missing);
