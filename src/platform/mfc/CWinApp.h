// The application: its main window, and its profile, which keeps integers by section and entry between runs.
#pragma once

#include <windows.h>

// The window that owns dialogs which have no other owner: what `find` gives at that moment, which may be
// null.
void AfxSetMainWindow(HWND (*find)());
HWND AfxGetMainWindow();

// Shows the text with an exclamation mark and OK under the application's name, before its active window.
void AfxMessageBox(const wchar_t* text);

// The profile lies in the registry, under HKEY_CURRENT_USER\Software\WexDialogs.
class CWinApp {
  public:
    static int GetProfileInt(const wchar_t* section, const wchar_t* entry, int missing);
    static bool WriteProfileInt(const wchar_t* section, const wchar_t* entry, int value);
};
