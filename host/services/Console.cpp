#include "host/services/Console.h"

#include <windows.h>

#include <utility>

#include "host/services/Texts.h"

namespace {

constexpr size_t LONG_OUTPUT = 4096;
// Of what was printed before there was a listener, in characters.
constexpr size_t MOST_BEFORE = 20'000;

void writeAll(DWORD stream, const std::string& bytes) {
    const HANDLE file = GetStdHandle(stream);
    DWORD written = 0;
    for (size_t at = 0; at < bytes.size(); at += written) {
        const auto rest = static_cast<DWORD>(bytes.size() - at);
        if (!WriteFile(file, bytes.data() + at, rest, &written, nullptr) || !written) return;
    }
}

}  // namespace

void Console::print(std::wstring_view text) {
    if (text.empty()) return;
    {
        const std::lock_guard lock(m_mutex);
        m_pending += utf8Text(text);
        m_isMidLine = text.back() != L'\n';
        if (text.back() == L'\n' || m_pending.size() > LONG_OUTPUT) flushLocked();
    }
    tell(text);
}

void Console::error(std::wstring_view line) {
    if (isMidLine()) print(L"\n");
    const std::wstring whole = std::wstring(line) + L"\n";
    {
        const std::lock_guard lock(m_mutex);
        flushLocked();
        writeAll(STD_ERROR_HANDLE, utf8Text(whole));
    }
    tell(whole);
}

bool Console::isMidLine() {
    const std::lock_guard lock(m_mutex);
    return m_isMidLine;
}

void Console::flush() {
    const std::lock_guard lock(m_mutex);
    flushLocked();
}

void Console::flushLocked() {
    writeAll(STD_OUTPUT_HANDLE, m_pending);
    m_pending.clear();
}

void Console::setListener(Listener listener) {
    m_listener = std::move(listener);
    m_listenerThread = std::this_thread::get_id();
    std::wstring before;
    {
        const std::lock_guard lock(m_mutex);
        before = std::exchange(m_before, {});
    }
    if (before.size() > MOST_BEFORE) before.erase(0, before.size() - MOST_BEFORE);
    if (!before.empty()) m_listener(before);
}

// The watchdog prints while the listener's thread may hang.
void Console::tell(std::wstring_view text) {
    if (!m_listener) {
        const std::lock_guard lock(m_mutex);
        m_before += text;
        if (m_before.size() > 2 * MOST_BEFORE) m_before.erase(0, m_before.size() - MOST_BEFORE);
        return;
    }
    if (std::this_thread::get_id() == m_listenerThread) m_listener(text);
}
