#include "src/preview/CGsPreviewCtrl.h"

#include "src/platform/mfc/Drawing.h"

IMPLEMENT_DYNAMIC(CGsPreviewCtrl, CStatic)

const MessageMap& CGsPreviewCtrl::messageMap() const {
    static const MessageMap map(CStatic::messageMap(), {on<WM_PAINT, &CGsPreviewCtrl::onPaint>()});
    return map;
}

bool CGsPreviewCtrl::Create(const RECT& rect, HWND parent, UINT id) {
    return CreateEx(0, L"Static", L"", WS_CHILD | WS_CLIPSIBLINGS, rect, parent, id);
}

void CGsPreviewCtrl::onPaint() {
    const PaintDC dc(m_hWnd);
    RECT client = GetClientRect();
    FillRect(dc, &client, GetSysColorBrush(COLOR_3DFACE));
    const SelectedObject font(dc, GetStockObject(DEFAULT_GUI_FONT));
    SetBkMode(dc, TRANSPARENT);
    DrawTextW(dc, L"The drawing preview is not built yet.", -1, &client,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}
