// Writes what a person does in dialogs as a program with sessions, which do it again.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

#include "host/drive/IdleWatch.h"
#include "host/record/Journal.h"
#include "host/record/KeyRecorder.h"
#include "host/record/MouseRecorder.h"
#include "host/record/WindowRecorder.h"

// Records while it lives, one at a time: the input of this thread, be it of the mouse and the keyboard or of
// a session that plays.
class Recorder : public DialogObserver {
  public:
    // `head` is the comment in front of what is recorded.
    Recorder(std::filesystem::path file, std::wstring head);
    ~Recorder();
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    void dialogIdle(HWND dialog) override;
    void messageBoxShown(HWND) override {}
    void windowGone(HWND window) override;

  private:
    static LRESULT CALLBACK messageHook(int code, WPARAM removed, LPARAM l) noexcept;
    static LRESULT CALLBACK sentHook(int code, WPARAM w, LPARAM l) noexcept;
    void taken(const MSG& message);
    void takenInput(const MSG& message, HWND dialog);
    void told(HWND window, UINT message, WPARAM w);

    Journal m_journal;
    KeyRecorder m_keys{m_journal};
    MouseRecorder m_mouse{m_journal};
    WindowRecorder m_windows{m_journal};
    IdleWatch m_watch{*this};
    HHOOK m_messages, m_sent;
};
