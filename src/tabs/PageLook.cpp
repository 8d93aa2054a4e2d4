#include "src/tabs/PageLook.h"

namespace {

// How a page looks is the control's own affair, so it is asked for a picture.
COLORREF drawnColor(const CWnd& tab, POINT at) {
    const RECT area = tab.GetClientRect();
    const ClientDC screen(tab.m_hWnd);
    const MemoryDC picture(screen, area.right, area.bottom);
    FillRect(picture, &area, GetSysColorBrush(COLOR_3DFACE));
    tab.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(picture.m_hDC), PRF_CLIENT);
    const COLORREF color = GetPixel(picture, at.x, at.y);
    return color == CLR_INVALID ? GetSysColor(COLOR_3DFACE) : color;
}

}  // namespace

HBRUSH PageLook::brushOf(const CWnd& tab, POINT middle) {
    // To paint itself, the control may ask the dialog for what lies behind it, and the dialog asks here
    // again.
    if (!m_brush && !m_asking) {
        m_asking = true;
        m_brush.reset(CreateSolidBrush(drawnColor(tab, middle)));
        m_asking = false;
    }
    return m_brush.get();
}
