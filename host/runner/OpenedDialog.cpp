#include "host/runner/OpenedDialog.h"

#include <uxtheme.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <optional>

#include "host/drive/WindowClass.h"
#include "host/runner/Contrast.h"
#include "src/platform/base/DialogResources.h"

namespace {

constexpr wchar_t SAMPLE[] = L"Sample";
// What is cut off around a text, so that no border is taken for it, and the mark of a check box or radio
// button.
constexpr int BORDER = 4;
constexpr int MARK = 18;
constexpr int GROUP_BOX_INDENT = 8;

// The grid of the plug-in, which isn't loaded for a check.
void standInForGrid() {
    static const ATOM registered = [] {
        WNDCLASSW info{};
        info.lpfnWndProc = DefWindowProcW;
        info.hInstance = GetModuleHandleW(nullptr);
        info.style = CS_GLOBALCLASS;
        info.lpszClassName = L"GXWND";
        return RegisterClassW(&info);
    }();
    static_cast<void>(registered);
}

INT_PTR CALLBACK dialogProcedure(HWND, UINT message, WPARAM, LPARAM) noexcept {
    return message == WM_INITDIALOG;
}

DWORD styleOf(HWND window) { return static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE)); }

RECT rectIn(HWND dialog, HWND control) {
    RECT rect{};
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

PlacedControl placedControl(HWND dialog, HWND control) {
    const RECT rect = rectIn(dialog, control);
    return {GetDlgCtrlID(control),
            windowClass(control),
            static_cast<uint32_t>(styleOf(control)),
            {rect.left, rect.top, rect.right, rect.bottom}};
}

std::vector<HWND> visibleControls(HWND dialog) {
    std::vector<HWND> controls;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (styleOf(child) & WS_VISIBLE) controls.push_back(child);
    return controls;
}

bool isOneOf(DWORD kind, std::initializer_list<DWORD> kinds) {
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

// Whether a control shows a text of its own that people read.
bool showsText(HWND control, const std::wstring& className) {
    const DWORD style = styleOf(control);
    if (className == L"Static")
        return isOneOf(style & SS_TYPEMASK, {SS_LEFT, SS_CENTER, SS_RIGHT, SS_LEFTNOWORDWRAP});
    if (style & WS_DISABLED) return false;
    if (className == L"Button")
        return (style & BS_TYPEMASK) != BS_OWNERDRAW && GetWindowTextLengthW(control) > 0;
    return className == L"Edit";
}

// Where the text of a control is drawn.
RECT textArea(HWND dialog, HWND control, const std::wstring& className) {
    RECT rect = rectIn(dialog, control);
    const DWORD kind = styleOf(control) & BS_TYPEMASK;
    if (className == L"Static") return rect;
    if (className == L"Button" && kind == BS_GROUPBOX) {
        rect.left += GROUP_BOX_INDENT;
        rect.bottom = std::min(rect.bottom, rect.top + MARK);
        return rect;
    }
    if (className == L"Button" && !isOneOf(kind, {BS_PUSHBUTTON, BS_DEFPUSHBUTTON})) {
        rect.left += MARK;
        return rect;
    }
    InflateRect(&rect, -BORDER, -BORDER);
    return rect;
}

// What a window's client area shows, row by row.
class Picture {
  public:
    explicit Picture(HWND window) {
        RECT client{};
        GetClientRect(window, &client);
        m_width = client.right;
        m_height = client.bottom;
        m_pixels.resize(static_cast<size_t>(m_width) * static_cast<size_t>(m_height));
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, m_width, -m_height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        const HDC from = GetDC(window);
        const HDC to = CreateCompatibleDC(from);
        const HBITMAP bitmap = CreateDIBSection(to, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        const HGDIOBJ former = SelectObject(to, bitmap);
        BitBlt(to, 0, 0, m_width, m_height, from, 0, 0, SRCCOPY);
        GdiFlush();
        if (bits) std::memcpy(m_pixels.data(), bits, m_pixels.size() * sizeof m_pixels[0]);
        SelectObject(to, former);
        DeleteObject(bitmap);
        DeleteDC(to);
        ReleaseDC(window, from);
    }

    std::vector<uint32_t> part(RECT area) const {
        const RECT all{0, 0, m_width, m_height};
        std::vector<uint32_t> pixels;
        if (!IntersectRect(&area, &area, &all)) return pixels;
        for (LONG y = area.top; y < area.bottom; ++y) {
            const auto row = m_pixels.begin() + static_cast<ptrdiff_t>(y) * m_width;
            pixels.insert(pixels.end(), row + area.left, row + area.right);
        }
        return pixels;
    }

  private:
    int m_width = 0, m_height = 0;
    std::vector<uint32_t> m_pixels;
};

// Frames and tab controls go under the other controls one after the other, in the order of their ids, as the
// plug-in puts them.
void putAroundsBelow(HWND dialog) {
    std::map<int, HWND> arounds;
    for (const HWND control : visibleControls(dialog)) {
        const bool isFrame = styleOf(control) == FRAME_STYLE && windowClass(control) == L"Button";
        if (isFrame || hasWindowClass(control, L"SysTabControl32"))
            arounds.emplace(GetDlgCtrlID(control), control);
    }
    for (const auto& [id, control] : arounds) {
        SetWindowLongPtrW(control, GWL_STYLE, styleOf(control) | WS_CLIPSIBLINGS);
        SetWindowPos(control, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
}

// Drawn by the platform, but of no color at all on the screen, and never active.
void showUnseen(HWND dialog) {
    SetWindowLongPtrW(
        dialog, GWL_EXSTYLE,
        GetWindowLongPtrW(dialog, GWL_EXSTYLE) | WS_EX_LAYERED | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW);
    SetLayeredWindowAttributes(dialog, 0, 0, LWA_ALPHA);
    SetWindowPos(dialog, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

// Takes controls out of `left` that don't cover each other: those of other pages of a tab control wait for
// their turn.
std::vector<HWND> takeApart(HWND dialog, std::vector<HWND>& left) {
    std::vector<HWND> taken, waiting;
    for (const HWND control : left) {
        const bool isCovered = std::any_of(taken.begin(), taken.end(), [&](HWND other) {
            return mayHide(placedControl(dialog, other), placedControl(dialog, control));
        });
        (isCovered ? waiting : taken).push_back(control);
    }
    left = std::move(waiting);
    return taken;
}

std::wstring oneDecimal(double value) {
    const int tenths = static_cast<int>(value * 10);
    return std::to_wstring(tenths / 10) + L'.' + std::to_wstring(tenths % 10);
}

std::optional<std::wstring> paleText(HWND dialog, HWND control, const Picture& picture) {
    const std::wstring className = windowClass(control);
    if (!showsText(control, className)) return std::nullopt;
    const std::vector<uint32_t> pixels = picture.part(textArea(dialog, control, className));
    const double contrast = contrastOf(pixels);
    if (pixels.empty() || contrast >= LEAST_CONTRAST) return std::nullopt;
    return L"control " + std::to_wstring(GetDlgCtrlID(control)) + L" shows its text at a contrast of " +
           oneDecimal(contrast) + L" to 1, where 4.5 is the least: enable it, or show it elsewhere";
}

}  // namespace

OpenedDialog::OpenedDialog(HMODULE module, std::span<const uint8_t> bytes, const DialogTemplate& dialog,
                           int percent) {
    standInForGrid();
    std::vector<uint8_t> scaled(bytes.begin(), bytes.end());
    if (dialog.fontPointsAt) {
        const auto points = static_cast<uint16_t>(MulDiv(dialog.fontPoints, percent, 100));
        std::memcpy(scaled.data() + dialog.fontPointsAt, &points, sizeof points);
    }
    m_window = CreateDialogIndirectParamW(module, reinterpret_cast<const DLGTEMPLATE*>(scaled.data()),
                                          nullptr, &dialogProcedure, 0);
    if (!m_window) return;
    RECT size{0, 0, dialog.width, dialog.height};
    MapDialogRect(m_window, &size);
    m_size = {size.right, size.bottom};
    putAroundsBelow(m_window);
}

void OpenedDialog::removeTheme() {
    SetWindowTheme(m_window, L"", L"");
    for (const HWND control : visibleControls(m_window)) SetWindowTheme(control, L"", L"");
}

OpenedDialog::~OpenedDialog() {
    if (m_window) DestroyWindow(m_window);
}

std::vector<std::wstring> OpenedDialog::misplaced() const {
    std::vector<PlacedControl> controls;
    for (const HWND control : visibleControls(m_window)) controls.push_back(placedControl(m_window, control));
    return findMisplaced(controls, m_size.cx, m_size.cy);
}

std::vector<std::wstring> OpenedDialog::paleTexts() const {
    const std::vector<HWND> controls = visibleControls(m_window);
    for (const HWND control : controls) {
        const std::wstring className = windowClass(control);
        const bool isEmpty =
            (className == L"Static" || className == L"Edit") && GetWindowTextLengthW(control) == 0;
        if (isEmpty && showsText(control, className)) SetWindowTextW(control, SAMPLE);
    }
    std::vector<std::wstring> found;
    for (std::vector<HWND> left = controls; !left.empty();) {
        const std::vector<HWND> shown = takeApart(m_window, left);
        for (const HWND control : controls)
            ShowWindow(control,
                       std::find(shown.begin(), shown.end(), control) == shown.end() ? SW_HIDE : SW_SHOWNA);
        showUnseen(m_window);
        const Picture picture(m_window);
        for (const HWND control : shown)
            if (const auto finding = paleText(m_window, control, picture)) found.push_back(*finding);
    }
    return found;
}
