// The reference host of this process: what its parts share.
#pragma once

#include <windows.h>

#include <memory>

#include "host/documents/Documents.h"
#include "host/lisp/Interpreter.h"
#include "host/services/Alerts.h"
#include "host/services/Console.h"

class MainFrame;

class Host {
  public:
    Host();
    ~Host();

    Console& console() { return m_console; }
    lisp::Interpreter& lisp() { return m_lisp; }
    Documents& documents() { return m_documents; }
    Alerts& alerts() { return m_alerts; }

    // The main frame, made and shown at the first question.
    MainFrame& mainFrame();
    bool hasMainFrame() const { return m_mainFrame != nullptr; }

    // No person is there: alerts are recorded and answered, and a dialog must have a session.
    bool isHeadless() const { return m_headless; }
    void setHeadless(bool headless) { m_headless = headless; }

    // What the process will exit with: the first failure holds.
    int status() const { return m_status; }
    void fail(int status) {
        if (!m_status) m_status = status;
    }

    // Ends the process: closes the documents and unloads the plug-ins unless one of their functions is being
    // called, and hands on what was printed.
    [[noreturn]] void exit(int status);

  private:
    Console m_console;
    lisp::Interpreter m_lisp;
    Documents m_documents;
    Alerts m_alerts;
    std::unique_ptr<MainFrame> m_mainFrame;
    bool m_headless = false;
    int m_status = 0;
};

// Made at the first question, on the main thread, and never destroyed: plug-ins reach it until the process
// ends.
Host& host();
