// A program that another host watches: the dialogs that it opens get back what the person had made of them in
// the run before, and when it is to run anew it leaves that for the next.
#pragma once

#include <windows.h>

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "host/drive/DialogState.h"
#include "host/drive/IdleWatch.h"

class WatchedRun : public DialogObserver {
  public:
    // `link` is the watching process's number, and "=" and the folder that both share.
    explicit WatchedRun(const std::wstring& link);
    WatchedRun(const WatchedRun&) = delete;
    WatchedRun& operator=(const WatchedRun&) = delete;

    // The program found that file: a change of it counts as one of the program.
    void noteFile(const std::filesystem::path& file);

    // Before the first step of a session, which may come sooner than the timer.
    void dialogIdle(HWND) override { look(); }
    void messageBoxShown(HWND) override {}
    void windowGone(HWND) override {}

  private:
    struct Opened {
        HWND window;
        std::wstring name;
        DialogState atStart;
        std::wstring pressed;  // the control that had the focus when it was last seen alone
    };

    static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) noexcept;
    void look() noexcept;
    void lookAtDialogs();
    void opened(HWND dialog);
    void keepState() const;
    void readState();

    IdleWatch m_watch{*this};
    HANDLE m_endEvent;
    HANDLE m_watcher;
    std::filesystem::path m_folder;
    std::set<std::filesystem::path> m_files;
    std::vector<Opened> m_open;
    // Of the run before, by the dialogs' names.
    std::map<std::wstring, DialogState> m_kept;
};
