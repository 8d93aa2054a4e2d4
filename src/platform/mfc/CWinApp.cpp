#include "src/platform/mfc/CWinApp.h"

#include <string>

namespace {

HWND (*g_findMainWindow)() = nullptr;

constexpr wchar_t APPLICATION[] = L"WexDialogs";

std::wstring keyOf(const wchar_t* section) {
    return std::wstring(L"Software\\") + APPLICATION + L'\\' + section;
}

}  // namespace

void AfxSetMainWindow(HWND (*find)()) { g_findMainWindow = find; }

HWND AfxGetMainWindow() { return g_findMainWindow ? g_findMainWindow() : nullptr; }

void AfxMessageBox(const wchar_t* text) {
    MessageBoxW(GetActiveWindow(), text, APPLICATION, MB_OK | MB_ICONEXCLAMATION);
}

int CWinApp::GetProfileInt(const wchar_t* section, const wchar_t* entry, int missing) {
    DWORD value = 0;
    DWORD size = sizeof value;
    const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, keyOf(section).c_str(), entry, RRF_RT_REG_DWORD,
                                        nullptr, &value, &size);
    return status == ERROR_SUCCESS ? static_cast<int>(value) : missing;
}

bool CWinApp::WriteProfileInt(const wchar_t* section, const wchar_t* entry, int value) {
    const auto number = static_cast<DWORD>(value);
    return RegSetKeyValueW(HKEY_CURRENT_USER, keyOf(section).c_str(), entry, REG_DWORD, &number,
                           sizeof number) == ERROR_SUCCESS;
}
