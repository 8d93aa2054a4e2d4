#include "src/platform/gridlib/GridClipboard.h"

#include <cstring>
#include <string>

namespace {

// The clipboard, while it is open for us.
class OpenedClipboard {
  public:
    explicit OpenedClipboard(HWND owner) : m_open(OpenClipboard(owner)) {}
    ~OpenedClipboard() {
        if (m_open) CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    explicit operator bool() const { return m_open; }

    // The letters and a 0 behind them.
    template <class Letter>
    bool put(UINT format, const std::basic_string<Letter>& text) {
        const size_t bytes = (text.size() + 1) * sizeof(Letter);
        const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
        void* to = memory ? GlobalLock(memory) : nullptr;
        if (to) {
            std::memcpy(to, text.c_str(), bytes);
            GlobalUnlock(memory);
        }
        if (to && SetClipboardData(format, memory)) return true;
        GlobalFree(memory);
        return false;
    }

  private:
    bool m_open;
};

}  // namespace

bool putOnClipboard(HWND owner, const CellRows& rows) {
    OpenedClipboard clipboard(owner);
    if (!clipboard || !EmptyClipboard()) return false;
    clipboard.put(RegisterClipboardFormatW(L"HTML Format"), cellsAsHtml(rows));
    return clipboard.put(CF_UNICODETEXT, cellsAsTabs(rows));
}

std::optional<CellRows> cellsOnClipboard(HWND owner) {
    const OpenedClipboard clipboard(owner);
    const HANDLE data = clipboard ? GetClipboardData(CF_UNICODETEXT) : nullptr;
    const auto* letters = data ? static_cast<const wchar_t*>(GlobalLock(data)) : nullptr;
    if (!letters) return std::nullopt;
    // Other programs may leave out the 0 at the end.
    CellRows rows = cellsFromTabs({letters, GlobalSize(data) / sizeof(wchar_t)});
    GlobalUnlock(data);
    return rows;
}
