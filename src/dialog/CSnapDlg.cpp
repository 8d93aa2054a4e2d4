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

StoredPlacement storedIn(const ProfileSection& section) {
    const auto entry = [&section](const wchar_t* name) { return CWinApp::GetProfileInt(section, name, 0); };
    return {entry(WIDTH_ENTRY), entry(HEIGHT_ENTRY), entry(X_ENTRY), entry(Y_ENTRY)};
}

DisplayScale displayScale() { return {hostMonitorDpiXScale(nullptr), hostMonitorDpiYScale(nullptr)}; }

// The primary screen, from the upper left corner 0, 0.
PixelRect screenRect() {
    RECT screen;
    ::GetWindowRect(GetDesktopWindow(), &screen);
    return pixelRect(screen);
}

PixelRect workAreaOf(HWND parent) {
    if (!parent) return screenRect();
    MONITORINFO info = {sizeof info};
    GetMonitorInfoW(MonitorFromWindow(parent, MONITOR_DEFAULTTONEAREST), &info);
    return pixelRect(info.rcWork);
}

}  // namespace

PixelRect pixelRect(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

RECT windowRect(const PixelRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

CSnapDlg::CSnapDlg(UINT templateId, CWnd* parent) : CDialog(templateId, parent) {
    const PixelRect screen = screenRect();
    m_limits.maxWidth = screen.width();
    m_limits.maxHeight = screen.height();
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

PixelRect CSnapDlg::restorePlacement() const {
    const ProfileSection section(m_registrySection.c_str(), ProfileSection::For::reading);
    const PixelRect screen = screenRect();
    return ::restorePlacement(storedIn(section), pixelRect(GetWindowRect()), screen.width(), screen.height(),
                              displayScale(), [this] { return workAreaOf(::GetWindow(m_hWnd, GW_OWNER)); });
}

void CSnapDlg::savePlacement() const {
    if (!isLive()) return;
    const ProfileSection section(m_registrySection.c_str(), ProfileSection::For::writing);
    const StoredPlacement stored = storedIn(section);
    const StoredPlacement store = placementToStore(pixelRect(GetWindowRect()), stored, displayScale());
    // An entry of 0 may be one that isn't there.
    const auto keep = [&section](const wchar_t* entry, int value, int before) {
        if (value != before || value == 0) CWinApp::WriteProfileInt(section, entry, value);
    };
    keep(WIDTH_ENTRY, store.width, stored.width);
    keep(HEIGHT_ENTRY, store.height, stored.height);
    keep(X_ENTRY, store.x, stored.x);
    keep(Y_ENTRY, store.y, stored.y);
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
