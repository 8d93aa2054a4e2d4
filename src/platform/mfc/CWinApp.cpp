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

ProfileSection::ProfileSection(const wchar_t* section, For what) {
    const std::wstring path = keyOf(section);
    if (what == For::reading)
        RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_QUERY_VALUE, &m_key);
    else
        RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_QUERY_VALUE | KEY_SET_VALUE,
                        nullptr, &m_key, nullptr);
}

ProfileSection::~ProfileSection() {
    if (m_key) RegCloseKey(m_key);
}

int CWinApp::GetProfileInt(const ProfileSection& section, const wchar_t* entry, int missing) {
    DWORD type = 0, value = 0, size = sizeof value;
    const bool isThere =
        section.key() && RegQueryValueExW(section.key(), entry, nullptr, &type,
                                          reinterpret_cast<BYTE*>(&value), &size) == ERROR_SUCCESS;
    return isThere && type == REG_DWORD ? static_cast<int>(value) : missing;
}

void CWinApp::WriteProfileInt(const ProfileSection& section, const wchar_t* entry, int value) {
    if (section.key())
        RegSetValueExW(section.key(), entry, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value),
                       sizeof value);
}
