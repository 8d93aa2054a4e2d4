// Where resources are looked up: a current module first, then a chain of modules that bring more.
// A null module has no resources: it never reaches the system, which would read the host's executable.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string_view>

#include "src/platform/base/CString.h"

struct AFX_MODULE_STATE {
    // The module that is looked at first; null where there is none.
    HMODULE m_hCurrentResourceHandle = nullptr;
    // The module that the library is a part of: the owner of its window classes and of the manifest (resource
    // 2) that gives its dialogs the themed controls.
    HMODULE m_hCurrentInstanceHandle = nullptr;
};

AFX_MODULE_STATE* AfxGetModuleState();

// What the library keeps of a module whose resources it searches.
struct AFX_EXTENSION_MODULE {
    bool bInitialized = false;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
};

// Readies the record for that module; false for a null module.
bool AfxInitExtensionModule(AFX_EXTENSION_MODULE& record, HMODULE module);
// Forgets the module.
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& record);

// While it lives, its module is a part of the resource search, behind those that were there before.
class CDynLinkLibrary {
  public:
    explicit CDynLinkLibrary(const AFX_EXTENSION_MODULE& record);
    ~CDynLinkLibrary();
    CDynLinkLibrary(const CDynLinkLibrary&) = delete;
    CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;

  private:
    HMODULE m_resources;
};

// The module that holds the resource, by the search; null where none does.
HMODULE AfxFindResourceHandle(const wchar_t* name, const wchar_t* type);

// The strings of a module's string table that aren't empty and have an id from `first` to `last`, in rising
// order, as they lie there, not NUL-terminated; until `take` gives true for one: whether it did.
bool findString(HMODULE module, UINT first, UINT last,
                const std::function<bool(UINT id, std::wstring_view text)>& take);
// The string of the module's string table as a buffer of that many characters would hold it, the NUL
// included; empty where there is none.
CString loadString(HMODULE module, UINT id, int bufferChars = 1500);

// An icon found by the search, in that size in pixels, or in its own where both are 0. The caller's.
HICON loadIcon(UINT id, int width = 0, int height = 0);
