#include "src/platform/buttons/CButtonST.h"

#include <commctrl.h>

#include <utility>

#include "src/platform/mfc/ThemeContext.h"

IMPLEMENT_DYNAMIC(CButtonST, CButton)

namespace {

// Between icon and text, in pixels at 96 dots per inch.
constexpr int GAP = 4;

int scaled(HDC dc, int pixels) {
    return MulDiv(pixels, GetDeviceCaps(dc, LOGPIXELSX), USER_DEFAULT_SCREEN_DPI);
}

ButtonBox boxOf(const RECT& rect) {
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

RECT rectOf(const ButtonBox& box) { return {box.left, box.top, box.left + box.width, box.top + box.height}; }

ButtonGround drawClassicFace(HDC dc, const ButtonState& state, RECT content) {
    FillRect(dc, &content, GetSysColorBrush(COLOR_3DFACE));
    if (state.isDefault && !state.disabled) {
        FrameRect(dc, &content, GetSysColorBrush(COLOR_WINDOWFRAME));
        InflateRect(&content, -1, -1);
    }
    const UINT down = state.isDefault ? DFCS_FLAT : DFCS_PUSHED;
    DrawFrameControl(dc, &content, DFC_BUTTON, DFCS_BUTTONPUSH | (state.pressed ? down : 0));
    RECT focus = content;
    InflateRect(&focus, -2, -2);
    InflateRect(&content, -GetSystemMetrics(SM_CXEDGE), -GetSystemMetrics(SM_CYEDGE));
    if (!state.disabled) return {content, focus, GetSysColor(COLOR_BTNTEXT)};
    return {content, focus, GetSysColor(COLOR_3DSHADOW), GetSysColor(COLOR_3DHILIGHT)};
}

}  // namespace

void CButtonST::attached() {
    m_hasTipWindow = false;
    m_default = (GetStyle() & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    ModifyStyle(BS_TYPEMASK, BS_OWNERDRAW);
}

void CButtonST::SetIcon(HICON icon) {
    m_icon = ButtonIcon(icon);
    Invalidate();
}

void CButtonST::setShowsText(bool shows) {
    m_showsText = shows;
    Invalidate();
}

void CButtonST::SetAlign(int /*align*/) { Invalidate(); }

const MessageMap& CButtonST::messageMap() const {
    static const MessageMap map(CButton::messageMap(),
                                {
                                    onReflectedMessage<WM_DRAWITEM, &CButtonST::onDrawItem>(),
                                    on<WM_MOUSEMOVE, &CButtonST::onMouseMove>(),
                                    on<WM_MOUSELEAVE, &CButtonST::onMouseLeave>(),
                                    on<WM_ERASEBKGND, &CButtonST::onEraseBackground>(),
                                    onRaw<BM_SETSTYLE, &CButtonST::onSetStyle>(),
                                    onRaw<WM_GETDLGCODE, &CButtonST::onGetDlgCode>(),
                                    onRaw<WM_LBUTTONDBLCLK, &CButtonST::onDoubleClick>(),
                                });
    return map;
}

ButtonState CButtonST::state() const {
    const bool pressed = SendMessage(BM_GETSTATE) & BST_PUSHED;
    return {!IsWindowEnabled(m_hWnd), pressed, m_hover, m_default, ::GetFocus() == m_hWnd};
}

ButtonGround CButtonST::drawFace(HDC dc, const ButtonState& state, const RECT& area) {
    return drawClassicFace(dc, state, area);
}

void CButtonST::onDrawItem(DRAWITEMSTRUCT* item) {
    const RECT area = item->rcItem;
    ButtonState now = state();
    now.pressed = item->itemState & ODS_SELECTED;
    const MemoryDC picture(item->hDC, area.right, area.bottom);
    drawContent(picture, now, drawFace(picture, now, area));
    picture.copyTo(item->hDC, 0, 0);
}

void CButtonST::drawContent(HDC dc, const ButtonState& state, const ButtonGround& ground) const {
    const SelectedObject font(dc, GetFont() ? GetFont() : GetStockObject(DEFAULT_GUI_FONT));
    const auto hidden = static_cast<UINT>(SendMessage(WM_QUERYUISTATE));
    const UINT format = DT_SINGLELINE | DT_END_ELLIPSIS | DT_VCENTER | DT_NOCLIP |
                        (hidden & UISF_HIDEACCEL ? DT_HIDEPREFIX : 0);
    const CString text = m_showsText ? GetWindowText() : CString();
    RECT measured = {};
    if (!text.empty()) DrawTextW(dc, text.c_str(), -1, &measured, DT_SINGLELINE | DT_CALCRECT);
    const ButtonParts parts = placeButtonParts(boxOf(ground.content), m_icon.size(),
                                               {measured.right, measured.bottom}, scaled(dc, GAP));
    m_icon.draw(dc, parts.icon.left, parts.icon.top, state.disabled);
    SetBkMode(dc, TRANSPARENT);
    if (!text.empty()) {
        RECT place = rectOf(parts.text);
        if (ground.edge != CLR_INVALID) {
            RECT below = place;
            OffsetRect(&below, 1, 1);
            SetTextColor(dc, ground.edge);
            DrawTextW(dc, text.c_str(), -1, &below, format);
        }
        SetTextColor(dc, ground.text);
        DrawTextW(dc, text.c_str(), -1, &place, format);
    }
    if (state.focused && !(hidden & UISF_HIDEFOCUS)) DrawFocusRect(dc, &ground.focus);
}

// Made when the pointer first comes, since most dialogs end before that. It goes with the dialog, its owner.
void CButtonST::makeTipWindow() {
    if (m_tip.empty() || std::exchange(m_hasTipWindow, true)) return;
    const ThemeContext themed;
    const HWND dialog = ::GetParent(m_hWnd);
    const HWND window = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, 0,
                                        0, 0, 0, dialog, nullptr, nullptr, nullptr);
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = dialog;
    tool.uId = reinterpret_cast<UINT_PTR>(m_hWnd);
    tool.lpszText = m_tip.data();
    ::SendMessageW(window, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void CButtonST::onMouseMove(UINT /*keys*/, POINT /*at*/) {
    makeTipWindow();
    if (!std::exchange(m_hover, true)) {
        TRACKMOUSEEVENT request = {sizeof request, TME_LEAVE, m_hWnd, 0};
        TrackMouseEvent(&request);
        Invalidate(false);
    }
    Default();
}

void CButtonST::onMouseLeave() {
    if (std::exchange(m_hover, false)) Invalidate(false);
    Default();
}

// The dialog manager moves the default look around; the button goes on drawing itself.
LRESULT CButtonST::onSetStyle(WPARAM style, LPARAM) {
    if (std::exchange(m_default, (style & BS_TYPEMASK) == BS_DEFPUSHBUTTON) != m_default) Invalidate(false);
    return 0;
}

// Without it the dialog manager wouldn't take an owner-drawn button for a push button: Enter would press
// another.
LRESULT CButtonST::onGetDlgCode(WPARAM, LPARAM) {
    return DLGC_BUTTON | (m_default ? DLGC_DEFPUSHBUTTON : DLGC_UNDEFPUSHBUTTON);
}

// Quick clicks are clicks: an owner-drawn button would report the second one otherwise.
LRESULT CButtonST::onDoubleClick(WPARAM keys, LPARAM at) { return SendMessage(WM_LBUTTONDOWN, keys, at); }

// All is drawn at once, so nothing flickers.
LRESULT CButtonST::onEraseBackground(HDC) { return TRUE; }
