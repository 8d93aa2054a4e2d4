#include "host/runner/Terminal.h"

#include <thread>

#include "host/services/Texts.h"

Terminal::Terminal() : m_event(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
    std::thread([this] { read(); }).detach();
}

void Terminal::read() {
    const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
    std::string line;
    char buffer[512];
    for (DWORD count = 0; ReadFile(input, buffer, sizeof buffer, &count, nullptr) && count;) {
        for (const char c : std::string_view(buffer, count)) {
            if (c == '\n') {
                add(line);
                line.clear();
            } else if (c != '\r') {
                line += c;
            }
        }
    }
    if (!line.empty()) add(line);
    const std::lock_guard lock(m_mutex);
    m_ended = true;
    SetEvent(m_event);
}

void Terminal::add(const std::string& line) {
    const std::lock_guard lock(m_mutex);
    m_lines.push_back(wideFromUtf8(line));
    SetEvent(m_event);
}

std::optional<std::wstring> Terminal::takeLine() {
    const std::lock_guard lock(m_mutex);
    if (m_lines.empty()) return std::nullopt;
    std::wstring line = std::move(m_lines.front());
    m_lines.pop_front();
    if (m_lines.empty() && !m_ended) ResetEvent(m_event);
    return line;
}

bool Terminal::isOver() {
    const std::lock_guard lock(m_mutex);
    return m_ended && m_lines.empty();
}

bool Terminal::isPerson() { return GetFileType(GetStdHandle(STD_INPUT_HANDLE)) == FILE_TYPE_CHAR; }
