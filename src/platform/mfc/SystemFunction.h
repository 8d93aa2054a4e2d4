// Functions of system modules that few runs need: the module is loaded at the first call, and stays.
#pragma once

#include <windows.h>

// Null where the system has no such module or function.
template <class Function>
Function* systemFunction(const wchar_t* module, const char* name) {
    const HMODULE loaded = LoadLibraryW(module);
    return loaded ? reinterpret_cast<Function*>(GetProcAddress(loaded, name)) : nullptr;
}
