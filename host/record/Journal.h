// The recording of a run and its file, which is whole at every moment.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>
#include <vector>

#include "host/record/Recording.h"

class Journal {
  public:
    // The file is written at once. `head` stands in front of it.
    Journal(std::filesystem::path file, std::wstring head);

    // The dialog has a session from now on, if it is one of the plug-in's.
    void dialogSeen(HWND dialog);
    void dialogGone(HWND dialog);
    // Whether steps may be added for it.
    bool knows(HWND dialog) const { return sessionOf(dialog) != nullptr; }

    // Adds a step for a dialog that is known, and writes the file.
    Recording::Place add(HWND dialog, RecordedStep step);
    // Sets a step's form; the file is written where that changes it.
    void setForm(Recording::Place place, std::wstring form);
    Recording& recording() { return m_recording; }
    void write();

  private:
    struct Seen {
        HWND dialog;
        size_t session;
    };
    const Seen* sessionOf(HWND dialog) const;

    std::filesystem::path m_file;
    Recording m_recording;
    std::vector<Seen> m_seen;
    bool m_failed = false;
};
