// What the entries of all kinds of controls share: asking the control by messages.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "host/drive/Items.h"

// The text that `fetch(buffer, characters)` gives, in a buffer as large as it needs: most controls cut what
// has no room, and don't tell.
template <class Fetch>
std::wstring wholeText(Fetch fetch) {
    for (std::wstring buffer(4096, L'\0');; buffer.assign(buffer.size() * 4, L'\0')) {
        const wchar_t* found = fetch(buffer.data(), static_cast<int>(buffer.size()));
        std::wstring text = found ? found : L"";
        if (text.size() + 1 < buffer.size()) return text;
    }
}

class ControlItems : public Items {
  public:
    explicit ControlItems(HWND window) : m_window(window) {}

  protected:
    LRESULT send(UINT message, WPARAM w = 0, LPARAM l = 0) const {
        return SendMessageW(m_window, message, w, l);
    }
    template <class Record>
    LRESULT send(UINT message, WPARAM w, Record* record) const {
        return send(message, w, reinterpret_cast<LPARAM>(record));
    }
    Spot middle(const RECT& rect) const {
        return {m_window, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}};
    }
    // The middle of what the control tells at the points to the left of `spot` and on its line, for as long
    // as `isThere(point)` holds; nothing where it holds nowhere.
    template <class IsThere>
    std::optional<Spot> foundLeftOf(const Spot& spot, IsThere isThere) const {
        POINT right = spot.point;
        while (right.x >= 0 && !isThere(right)) --right.x;
        if (right.x < 0) return std::nullopt;
        POINT left = right;
        while (left.x > 0 && isThere({left.x - 1, left.y})) --left.x;
        return Spot{m_window, {(left.x + right.x) / 2, spot.point.y}};
    }
    static std::wstring upToNul(const std::wstring& buffer) { return buffer.c_str(); }

    HWND m_window;
};
