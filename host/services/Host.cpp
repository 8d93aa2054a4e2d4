#include "host/services/Host.h"

namespace {

// Three quarters of the stack that wexhost.exe is linked with.
constexpr size_t LISP_STACK_BYTES = size_t(12) << 20;

// The exit status for a program with warnings that count as errors.
constexpr int WARNED = 1;

}  // namespace

Host::Host() : m_lisp({.stackBytes = LISP_STACK_BYTES}), m_alerts(m_console) {}

HWND Host::mainFrame() {
    if (!m_mainFrame && m_makeMainFrame) m_mainFrame = m_makeMainFrame();
    return m_mainFrame;
}

HWND Host::completeMainFrame() {
    if (mainFrame() && m_completeMainFrame) m_completeMainFrame();
    return m_mainFrame;
}

bool Host::warn(const Warnings::Site& site, std::wstring_view words, std::wstring_view wanted,
                std::span<const std::wstring> candidates) {
    const auto line = m_warnings.tell(site, words, wanted, candidates);
    if (line) m_console.error(*line);
    return line.has_value();
}

void Host::exit(int status) {
    if (status == 0 && m_warnings.haveFailed()) status = WARNED;
    if (m_atExit) m_atExit();
    m_console.flush();
    ExitProcess(static_cast<UINT>(status));
}

Host& host() {
    static Host& instance = *new Host;
    return instance;
}
