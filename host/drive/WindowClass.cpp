#include "host/drive/WindowClass.h"

namespace {

// The system allows no longer ones.
constexpr int CLASS_NAME_CHARS = 256;

}  // namespace

std::wstring windowClass(HWND window) {
    wchar_t name[CLASS_NAME_CHARS + 1] = {};
    GetClassNameW(window, name, CLASS_NAME_CHARS + 1);
    return name;
}

bool hasWindowClass(HWND window, const wchar_t* name) {
    return lstrcmpiW(windowClass(window).c_str(), name) == 0;
}
