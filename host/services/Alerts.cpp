#include "host/services/Alerts.h"

#include <windows.h>

#include <utility>

#include "host/services/Host.h"

void Alerts::show(std::wstring_view text) {
    record(text);
    if (!m_attended) return;
    const HWND active = GetActiveWindow();
    m_showing = true;
    MessageBoxW(active ? active : host().mainFrame(), std::wstring(text).c_str(), L"WexHost",
                MB_OK | MB_ICONEXCLAMATION);
    m_showing = false;
}

void Alerts::record(std::wstring_view text) {
    m_texts.emplace_back(text);
    m_console.print(L"[alert] " + m_texts.back() + L"\n");
}

std::vector<std::wstring> Alerts::take() { return std::exchange(m_texts, {}); }
