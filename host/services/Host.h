// The reference host of this process: what its parts share.
#pragma once

#include <windows.h>

#include <functional>

#include "host/lisp/Interpreter.h"
#include "host/services/Actions.h"
#include "host/services/Alerts.h"
#include "host/services/Console.h"
#include "host/services/Warnings.h"

class Host {
  public:
    Host();

    Console& console() { return m_console; }
    lisp::Interpreter& lisp() { return m_lisp; }
    Actions& actions() { return m_actions; }
    Alerts& alerts() { return m_alerts; }
    Warnings& warnings() { return m_warnings; }

    // Prints a warning, unless one of its kind was told there. Whether it was printed.
    bool warn(const Warnings::Site& site, std::wstring_view words, std::wstring_view wanted = {},
              std::span<const std::wstring> candidates = {});

    // The window in front of which dialogs open: what `make` gives at the first question.
    HWND mainFrame();
    // The same with all that a person works it by.
    HWND completeMainFrame();
    void setMainFrame(std::function<HWND()> make, std::function<void()> complete) {
        m_makeMainFrame = std::move(make);
        m_completeMainFrame = std::move(complete);
    }

    // No person is there: alerts are recorded and answered, and a dialog must have a session.
    bool isHeadless() const { return m_headless; }
    void setHeadless(bool headless) { m_headless = headless; }

    // What the process will exit with: the first failure holds.
    int status() const { return m_status; }
    void fail(int status) {
        if (!m_status) m_status = status;
    }

    // Ends the process, after `work` and when all that was printed has been handed on. Warnings that count as
    // errors make a status of 0 that of an error.
    [[noreturn]] void exit(int status);
    void setAtExit(std::function<void()> work) { m_atExit = std::move(work); }

  private:
    Console m_console;
    lisp::Interpreter m_lisp;
    Actions m_actions{m_lisp};
    Alerts m_alerts;
    Warnings m_warnings{m_lisp};
    std::function<HWND()> m_makeMainFrame;
    std::function<void()> m_completeMainFrame;
    std::function<void()> m_atExit;
    HWND m_mainFrame = nullptr;
    bool m_headless = false;
    int m_status = 0;
};

// Made at the first question, on the main thread, and never destroyed: plug-ins reach it until the process
// ends.
Host& host();
