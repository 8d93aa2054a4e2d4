// What a watching host and the host that runs the watched program share: a folder and an event, both named
// after the watching process.
#pragma once

#include <filesystem>
#include <string>

// The program is to end, and to leave its dialogs' state in the folder.
inline std::wstring endEventName(const std::wstring& watcher) { return L"Local\\wexhost-end-" + watcher; }

// Holds a line for each file that the program found, as UTF-8.
constexpr wchar_t FOUND_FILES[] = L"found";
// Holds a line for each piece of a dialog's state: the dialog's name, the piece's, and its value, with tabs
// between.
constexpr wchar_t KEPT_STATE[] = L"state";
