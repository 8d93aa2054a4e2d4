#include "src/tiles/WexStatic.h"

#include "src/platform/mfc/Drawing.h"

IMPLEMENT_DYNAMIC(WexStatic, CStatic)

namespace {

// In pixels: what the text keeps free at its right edge, and above and below together.
constexpr int RIGHT_MARGIN = 3;
constexpr int HEIGHT_MARGIN = 2;

}  // namespace

const MessageMap& WexStatic::messageMap() const {
    static const MessageMap map(CStatic::messageMap(), {on<WM_SIZING, &WexStatic::onSizing>()});
    return map;
}

void WexStatic::onSizing(UINT /*edge*/, RECT* /*proposed*/) {
    Default();
    fitHeight();
}

bool WexStatic::fitHeight() {
    const CString text = GetWindowText();
    if (text.IsEmpty()) return false;
    RECT rect = rectInParent();
    const ClientDC dc(m_hWnd);
    const SelectedObject font(dc, GetFont() ? GetFont() : GetStockObject(SYSTEM_FONT));
    RECT measured = {0, 0, rect.right - rect.left - RIGHT_MARGIN, 0};
    const int height = DrawTextW(dc, text.c_str(), -1, &measured, DT_WORDBREAK | DT_CALCRECT);
    if (height < 1 || rect.bottom - rect.top == height + HEIGHT_MARGIN) return false;
    rect.bottom = rect.top + height + HEIGHT_MARGIN;
    MoveWindow(rect);
    return true;
}
