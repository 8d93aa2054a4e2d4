// The application: its main window, and its profile, which keeps integers by section and entry between runs.
#pragma once

#include <windows.h>

// The window that owns dialogs which have no other owner: what `find` gives at that moment, which may be
// null.
void AfxSetMainWindow(HWND (*find)());
HWND AfxGetMainWindow();

// Shows the text with an exclamation mark and OK under the application's name, before its active window.
void AfxMessageBox(const wchar_t* text);

// A section of the profile, which lies in the registry, under HKEY_CURRENT_USER\Software\WexDialogs. Whoever
// needs several entries keeps it for as long: finding the section costs more than an entry.
class ProfileSection {
  public:
    enum class For { reading, writing };  // a section that is written is made where there is none
    ProfileSection(const wchar_t* section, For what);
    ~ProfileSection();
    ProfileSection(const ProfileSection&) = delete;
    ProfileSection& operator=(const ProfileSection&) = delete;

    HKEY key() const { return m_key; }  // null where there is none

  private:
    HKEY m_key = nullptr;
};

class CWinApp {
  public:
    static int GetProfileInt(const ProfileSection& section, const wchar_t* entry, int missing);
    static void WriteProfileInt(const ProfileSection& section, const wchar_t* entry, int value);
};
