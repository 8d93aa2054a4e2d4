#include "src/dialog/CSnapDlg.h"

#include "src/platform/host/HostServices.h"
#include "src/platform/mfc/CWinApp.h"
#include "src/platform/mfc/Drawing.h"

IMPLEMENT_DYNAMIC(CSnapDlg, CDialog)

namespace {

// Profile entries. kept: "TopLeft" in the names, although they hold the lower right corner.
constexpr wchar_t WIDTH_ENTRY[] = L"sizeWidth3";
constexpr wchar_t HEIGHT_ENTRY[] = L"sizeHeight3";
constexpr wchar_t X_ENTRY[] = L"nTopLeftX3";
constexpr wchar_t Y_ENTRY[] = L"nTopLeftY3";

DisplayScale displayScale() { return {hostMonitorDpiXScale(nullptr), hostMonitorDpiYScale(nullptr)}; }

PixelRect workAreaOf(HWND parent) {
    if (!parent) return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    MONITORINFO info = {sizeof info};
    GetMonitorInfoW(MonitorFromWindow(parent, MONITOR_DEFAULTTONEAREST), &info);
    return pixelRect(info.rcWork);
}

}  // namespace

PixelRect pixelRect(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

RECT windowRect(const PixelRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

CSnapDlg::CSnapDlg(UINT templateId, CWnd* parent) : CDialog(templateId, parent) {
    m_limits.maxWidth = GetSystemMetrics(SM_CXSCREEN);
    m_limits.maxHeight = GetSystemMetrics(SM_CYSCREEN);
}

const MessageMap& CSnapDlg::messageMap() const {
    static const MessageMap map(CDialog::messageMap(), {
                                                           on<WM_SIZING, &CSnapDlg::onSizing>(),
                                                           on<WM_SIZE, &CSnapDlg::onSize>(),
                                                           on<WM_PAINT, &CSnapDlg::onPaint>(),
                                                           on<WM_NCHITTEST, &CSnapDlg::onNcHitTest>(),
                                                           on<WM_DESTROY, &CSnapDlg::onDestroy>(),
                                                       });
    return map;
}

bool CSnapDlg::OnInitDialog() {
    m_gripSize = {GetSystemMetrics(SM_CXVSCROLL), GetSystemMetrics(SM_CYHSCROLL)};
    return CDialog::OnInitDialog();
}

void CSnapDlg::runEnded() { m_gripRect = {}; }

StoredPlacement CSnapDlg::stored() const {
    const auto entry = [this](const wchar_t* name) {
        return CWinApp::GetProfileInt(m_registrySection.c_str(), name, 0);
    };
    return {entry(WIDTH_ENTRY), entry(HEIGHT_ENTRY), entry(X_ENTRY), entry(Y_ENTRY)};
}

PixelRect CSnapDlg::restorePlacement() const {
    return ::restorePlacement(stored(), pixelRect(GetWindowRect()), GetSystemMetrics(SM_CXSCREEN),
                              GetSystemMetrics(SM_CYSCREEN), displayScale(),
                              [this] { return workAreaOf(::GetWindow(m_hWnd, GW_OWNER)); });
}

void CSnapDlg::savePlacement() const {
    if (!isLive()) return;
    const StoredPlacement store = placementToStore(pixelRect(GetWindowRect()), stored(), displayScale());
    const auto write = [this](const wchar_t* name, int value) {
        CWinApp::WriteProfileInt(m_registrySection.c_str(), name, value);
    };
    write(WIDTH_ENTRY, store.width);
    write(HEIGHT_ENTRY, store.height);
    write(X_ENTRY, store.x);
    write(Y_ENTRY, store.y);
}

void CSnapDlg::onSizing(UINT /*edge*/, RECT* proposed) {
    *proposed = windowRect(limitSizing(pixelRect(*proposed), m_limits, displayScale()));
    Default();
}

void CSnapDlg::onSize(UINT /*type*/, int /*width*/, int /*height*/) {
    Default();
    drawGrip();
}

void CSnapDlg::onPaint() {
    Default();
    drawGrip();
}

void CSnapDlg::onDestroy() {
    savePlacement();
    Default();
}

void CSnapDlg::drawGrip() {
    if (!m_resizable) return;
    const ClientDC dc(m_hWnd);
    SetBkColor(dc, GetSysColor(COLOR_3DFACE));
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &m_gripRect, nullptr, 0, nullptr);
    const RECT client = GetClientRect();
    m_gripRect = {client.right - m_gripSize.cx, client.bottom - m_gripSize.cy, client.right, client.bottom};
    DrawFrameControl(dc, &m_gripRect, DFC_SCROLL, DFCS_SCROLLSIZEGRIP);
}

LRESULT CSnapDlg::onNcHitTest(POINT at) {
    ScreenToClient(m_hWnd, &at);
    if (m_resizable && at.x >= 0 && at.y >= 0 && PtInRect(&m_gripRect, at)) return HTBOTTOMRIGHT;
    return Default();
}
