// A temporary folder for this process alone. Plug-ins give their files fixed names, which two hosts would
// take from each other.
#pragma once

#include <windows.h>

#include <filesystem>

class TempFolder {
  public:
    // Makes the folder inside the system's, and GetTempPathW gives it from now on. Folders of hosts that were
    // killed go. Throws std::filesystem::filesystem_error, with the temporary folder as it was.
    TempFolder();
    // Removes it with all that is in it.
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

  private:
    HANDLE m_claim;
    std::filesystem::path m_path;
};
