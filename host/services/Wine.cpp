#include "host/services/Wine.h"

#include <windows.h>

bool isUnderWine() {
    static const bool wine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    return wine;
}
