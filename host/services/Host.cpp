#include "host/services/Host.h"

namespace {

// Three quarters of the stack that wexhost.exe is linked with.
constexpr size_t LISP_STACK_BYTES = size_t(12) << 20;

}  // namespace

Host::Host() : m_lisp({.stackBytes = LISP_STACK_BYTES}), m_alerts(m_console) {}

HWND Host::mainFrame() {
    if (!m_mainFrame && m_makeMainFrame) m_mainFrame = m_makeMainFrame();
    return m_mainFrame;
}

void Host::exit(int status) {
    if (m_atExit) m_atExit();
    m_console.flush();
    ExitProcess(static_cast<UINT>(status));
}

Host& host() {
    static Host& instance = *new Host;
    return instance;
}
