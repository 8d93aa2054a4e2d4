#include "host/services/Host.h"

#include "host/runner/MainFrame.h"
#include "host/services/CallFrame.h"

namespace {

// Three quarters of the stack that wexhost.exe is linked with.
constexpr size_t LISP_STACK_BYTES = size_t(12) << 20;

}  // namespace

Host::Host() : m_lisp({.stackBytes = LISP_STACK_BYTES}), m_documents(m_lisp), m_alerts(m_console) {}

Host::~Host() = default;

MainFrame& Host::mainFrame() {
    if (!m_mainFrame) m_mainFrame = std::make_unique<MainFrame>();
    return *m_mainFrame;
}

void Host::exit(int status) {
    if (!CallFrame::current()) m_documents.closeAll();
    m_console.flush();
    ExitProcess(static_cast<UINT>(status));
}

Host& host() {
    static Host& instance = *new Host;
    return instance;
}
