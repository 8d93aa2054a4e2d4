#include "src/tiles/WexFrame.h"

#include "src/dialog/WexDialog.h"
#include "src/platform/mfc/WindowClass.h"

IMPLEMENT_DYNAMIC(WexFrame, CWnd)

namespace {

constexpr wchar_t FRAME_CLASS[] = L"WexFrame";
constexpr DWORD FRAME_WINDOW_STYLE = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;
constexpr DWORD GROUP_BOX_STYLE = WS_CHILD | WS_VISIBLE | BS_GROUPBOX;
constexpr UINT GROUP_BOX_ID = 101;

void registerFrameClass() {
    static const WindowClass registered(FRAME_CLASS, reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1),
                                        CS_HREDRAW | CS_VREDRAW);
}

}  // namespace

const MessageMap& WexFrame::messageMap() const {
    static const MessageMap map(CWnd::messageMap(), {
                                                        on<WM_SIZE, &WexFrame::onSize>(),
                                                        on<WM_ERASEBKGND, &WexFrame::onEraseBackground>(),
                                                        on<WM_CTLCOLORSTATIC, &WexFrame::onColorStatic>(),
                                                        onRaw<WM_SETTEXT, &WexFrame::onSetText>(),
                                                    });
    return map;
}

void WexFrame::attach(WexDialog& dialog, HWND control) { replace(dialog, ::GetDlgCtrlID(control)); }

void WexFrame::replace(const CWnd& parent, int id) {
    CWnd* groupBox = parent.GetDlgItem(id);
    const CString caption = groupBox->GetWindowText();
    const RECT rect = groupBox->rectInParent();
    const HFONT font = parent.GetFont();
    groupBox->DestroyWindow();
    registerFrameClass();
    if (!CreateEx(0, FRAME_CLASS, L"", FRAME_WINDOW_STYLE, rect, parent.m_hWnd, static_cast<UINT>(id)))
        return;
    createGroupBox(caption, font);
    lower();
}

void WexFrame::createGroupBox(const CString& caption, HFONT font) {
    m_groupBox.CreateEx(0, L"Button", caption.c_str(), GROUP_BOX_STYLE, GetClientRect(), m_hWnd,
                        GROUP_BOX_ID);
    m_groupBox.SetFont(font);
}

void WexFrame::onSize(UINT /*type*/, int width, int height) {
    if (!m_groupBox.isLive()) return;
    m_groupBox.MoveWindow({0, 0, width, height});
    m_groupBox.Invalidate();
}

LRESULT WexFrame::onEraseBackground(HDC dc) {
    const RECT client = GetClientRect();
    FillRect(dc, &client, reinterpret_cast<HBRUSH>(onColorStatic(dc, this)));
    return TRUE;
}

// The background is what the dialog has there.
LRESULT WexFrame::onColorStatic(HDC dc, CWnd* control) {
    return GetParent()->SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                                    reinterpret_cast<LPARAM>(control->m_hWnd));
}

// The frame's own caption stays empty, and the group box keeps its own.
LRESULT WexFrame::onSetText(WPARAM, LPARAM) { return TRUE; }
