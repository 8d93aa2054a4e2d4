#include "host/drive/ScrollFunctions.h"

#include "host/drive/Mouse.h"
#include "host/drive/Player.h"
#include "host/drive/Tile.h"
#include "host/lisp/Interpreter.h"
#include "host/services/Texts.h"

namespace {

using lisp::Call;
using lisp::Value;

// A scroll bar's parts along its length, in client pixels from its upper or left end.
class BarParts {
  public:
    explicit BarParts(const Tile& bar) : m_window(bar.window()) {
        SCROLLBARINFO info{};
        info.cbSize = sizeof info;
        if (!GetScrollBarInfo(m_window, OBJID_CLIENT, &info)) bar.fail(L"it is no scroll bar");
        m_upright = GetWindowLongW(m_window, GWL_STYLE) & SBS_VERT;
        GetClientRect(m_window, &m_client);
        m_arrow = info.dxyLineButton;
        m_thumbTop = info.xyThumbTop;
        m_thumbBottom = info.xyThumbBottom;
    }

    Spot lineUp() const { return at(m_arrow / 2); }
    Spot lineDown() const { return at(length() - m_arrow / 2); }
    Spot pageUp() const { return at((m_arrow + m_thumbTop) / 2); }
    Spot pageDown() const { return at((m_thumbBottom + length() - m_arrow) / 2); }
    Spot thumb() const { return at((m_thumbTop + m_thumbBottom) / 2); }
    // Where the thumb's middle is at that position.
    Spot thumbAt(int position) const {
        int first = 0, last = 0;
        GetScrollRange(m_window, SB_CTL, &first, &last);
        const int size = m_thumbBottom - m_thumbTop;
        const int way = length() - 2 * m_arrow - size;
        return at(m_arrow + size / 2 + (last > first ? MulDiv(way, position - first, last - first) : 0));
    }

  private:
    LONG length() const { return m_upright ? m_client.bottom : m_client.right; }
    Spot at(LONG along) const {
        return {m_window, m_upright ? POINT{m_client.right / 2, along} : POINT{along, m_client.bottom / 2}};
    }

    HWND m_window;
    RECT m_client{};
    bool m_upright;
    LONG m_arrow, m_thumbTop, m_thumbBottom;
};

Spot partNamed(Call& call, const BarParts& parts, const std::wstring& name) {
    if (name == L"LINEUP") return parts.lineUp();
    if (name == L"LINEDOWN") return parts.lineDown();
    if (name == L"PAGEUP") return parts.pageUp();
    if (name != L"PAGEDOWN") call.expected(1, "LINEUP, LINEDOWN, PAGEUP, PAGEDOWN or a position");
    return parts.pageDown();
}

// (ui_scroll tile "PART"), (ui_scroll tile position)
Value scroll(Call& call) {
    const Tile tile(call, 0);
    tile.mustBeWorkable();
    const BarParts parts(tile);
    if (call[1].isInteger()) {
        const Spot from = parts.thumb(), to = parts.thumbAt(call.integer(1));
        player().act(tile.dialog(), [=] { sweep(from, to, 0); });
    } else {
        const Spot part = partNamed(call, parts, wideText(call.text(1)));
        player().act(tile.dialog(), [=] { click(part, 0); });
    }
    return Value::none();
}

// (ui_wheel tile notches): upwards, or down if negative.
Value wheel(Call& call) {
    const Tile tile(call, 0);
    tile.mustBeWorkable();
    const WPARAM turned = MAKEWPARAM(0, call.integer(1) * WHEEL_DELTA);
    player().act(tile.dialog(), [=] {
        Spot middle = middleOf(tile.window());
        ClientToScreen(middle.window, &middle.point);
        PostMessageW(middle.window, WM_MOUSEWHEEL, turned, MAKELPARAM(middle.point.x, middle.point.y));
    });
    return Value::none();
}

constexpr UiFunction FUNCTIONS[] = {{u"ui_scroll", &scroll, 2, 2}, {u"ui_wheel", &wheel, 2, 2}};

}  // namespace

std::span<const UiFunction> scrollFunctions() { return FUNCTIONS; }
