#include "host/frame/FrameTools.h"

#include "host/frame/FrameViews.h"
#include "src/platform/mfc/WindowClass.h"

namespace {

constexpr wchar_t CLASS_NAME[] = L"WexHostTools";

// Pixels at 96 dots per inch.
constexpr int BUTTON_SIDE = 26;
constexpr int MARGIN = 3;
constexpr int GROUP_GAP = 8;

// 0 begins another group.
constexpr UINT TOOLS[] = {OPEN_PROGRAM,
                          RUN_AGAIN,
                          LOAD_PLUGIN,
                          0,
                          FIT,
                          ZOOM_IN,
                          ZOOM_OUT,
                          0,
                          FIRST_VIEW + VIEW_TOP,
                          FIRST_VIEW + VIEW_FRONT,
                          FIRST_VIEW + VIEW_RIGHT,
                          FIRST_VIEW + VIEW_ISOMETRIC,
                          0,
                          FIRST_PAGE};

void registerClass() {
    static const WindowClass& registered =
        *new WindowClass(CLASS_NAME, reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1));
    (void)registered;
}

}  // namespace

FrameTools::FrameTools(HWND parent, UINT id, int dpi) {
    registerClass();
    CreateEx(WS_EX_CONTROLPARENT, CLASS_NAME, L"Tools", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, RECT{},
             parent, id);
    for (const UINT tool : TOOLS) {
        if (!tool) continue;
        auto& button = *m_buttons.emplace_back(std::make_unique<CXPStyleButtonST>());
        button.SetThemeHelper(&m_themeHelper);
        button.setShowsText(false);
        button.SubclassWindow(CreateWindowExW(0, L"Button", nameText(frameCommand(tool)).c_str(),
                                              WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON, 0, 0, 0, 0,
                                              m_hWnd, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(tool)),
                                              nullptr, nullptr));
        button.setTip(tipText(frameCommand(tool)));
    }
    setDpi(dpi);
}

FrameTools::~FrameTools() { DestroyWindow(); }

void FrameTools::setDpi(int dpi) {
    m_dpi = dpi;
    const int iconSide = GetSystemMetricsForDpi(SM_CXSMICON, static_cast<UINT>(dpi));
    int left = scaled(MARGIN);
    auto button = m_buttons.begin();
    for (const UINT tool : TOOLS) {
        if (!tool) {
            left += scaled(GROUP_GAP);
            continue;
        }
        const int side = scaled(BUTTON_SIDE), top = scaled(MARGIN);
        (*button)->SetIcon(frameIcon(frameCommand(tool).icon, iconSide).release());
        (*button)->MoveWindow({left, top, left + side, top + side});
        left += side;
        ++button;
    }
}

int FrameTools::heightAt(int dpi) { return MulDiv(BUTTON_SIDE + 2 * MARGIN, dpi, USER_DEFAULT_SCREEN_DPI); }

void FrameTools::enable(UINT command, bool enabled) {
    if (const HWND button = ::GetDlgItem(m_hWnd, static_cast<int>(command))) ::EnableWindow(button, enabled);
}

void FrameTools::enableViews(bool enabled) {
    for (const UINT command : {UINT{FIT}, UINT{ZOOM_IN}, UINT{ZOOM_OUT}}) enable(command, enabled);
    for (UINT at = 0; at < VIEW_COUNT; ++at) enable(FIRST_VIEW + at, enabled);
}

bool FrameTools::OnCommand(UINT id, UINT notification) {
    if (notification != BN_CLICKED) return false;
    ::SendMessageW(::GetParent(m_hWnd), WM_COMMAND, id, 0);
    return true;
}
