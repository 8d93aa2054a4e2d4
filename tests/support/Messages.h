// Messages to windows that a test has made.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

// Gives each message that waits to its window.
inline void pump() {
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

// What a tip shows for a tool of the window.
inline std::wstring tipText(HWND tip, HWND owner, UINT_PTR tool) {
    wchar_t text[128] = {};
    TTTOOLINFOW info = {};
    info.cbSize = TTTOOLINFOW_V1_SIZE;
    info.hwnd = owner;
    info.uId = tool;
    info.lpszText = text;
    SendMessageW(tip, TTM_GETTEXTW, ARRAYSIZE(text), reinterpret_cast<LPARAM>(&info));
    return text;
}
