#include "host/drive/Shot.h"

#include <algorithm>
#include <vector>

#include "host/drive/Menus.h"

namespace {

// The grey of what is neither the window nor a menu.
constexpr BYTE BESIDE_WINDOWS = 0xE0;

// What a picture is copied into.
class PictureSurface {
  public:
    PictureSurface(HDC like, SIZE size) : m_dc(CreateCompatibleDC(like)), m_size(size) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = size.cx;
        info.bmiHeader.biHeight = -size.cy;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_section = CreateDIBSection(like, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0);
        if (m_section) m_previous = SelectObject(m_dc, m_section);
    }
    ~PictureSurface() {
        if (m_section) SelectObject(m_dc, m_previous);
        DeleteObject(m_section);
        DeleteDC(m_dc);
    }
    PictureSurface(const PictureSurface&) = delete;
    PictureSurface& operator=(const PictureSurface&) = delete;

    HDC dc() const { return m_dc; }
    // Empty where there was no memory for it.
    Picture picture() const {
        if (!m_section) return {};
        GdiFlush();
        Picture picture(m_size.cx, m_size.cy);
        std::copy_n(static_cast<const BYTE*>(m_bits), picture.pixels.size(), picture.pixels.begin());
        return picture;
    }

  private:
    HDC m_dc;
    SIZE m_size;
    HBITMAP m_section;
    HGDIOBJ m_previous = nullptr;
    void* m_bits = nullptr;
};

void moveTo(HWND window, POINT at) {
    SetWindowPos(window, nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Copies the part of the window that is on the screen.
void copyVisible(HWND window, SIZE size, HDC to, RECT screen) {
    RECT rect;
    GetWindowRect(window, &rect);
    RECT part;
    if (!IntersectRect(&part, &rect, &screen)) return;
    OffsetRect(&part, -rect.left, -rect.top);
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    const HDC source = GetWindowDC(window);
    BitBlt(to, part.left, part.top, std::min(part.right, size.cx) - part.left,
           std::min(part.bottom, size.cy) - part.top, source, part.left, part.top, SRCCOPY);
    ReleaseDC(window, source);
}

// A caret blinks, and would stand in one picture and not in the next.
class NoCaret {
  public:
    NoCaret() : m_hidden(HideCaret(nullptr)) {}
    ~NoCaret() {
        if (m_hidden) ShowCaret(nullptr);
    }
    NoCaret(const NoCaret&) = delete;
    NoCaret& operator=(const NoCaret&) = delete;

  private:
    BOOL m_hidden;
};

// Copying from the window's own surface gets its children too, and what other windows cover, but not what
// lies off the screen: a window that isn't wholly on it is pushed across it, and back to where it was.
Picture pictureOfOne(HWND window) {
    RECT rect;
    GetWindowRect(window, &rect);
    const SIZE size = {rect.right - rect.left, rect.bottom - rect.top};
    const POINT corner = {GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_YVIRTUALSCREEN)};
    const SIZE room = {GetSystemMetrics(SM_CXVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN)};
    const RECT screen = {corner.x, corner.y, corner.x + room.cx, corner.y + room.cy};
    const HDC like = GetDC(nullptr);
    const PictureSurface surface(like, size);
    ReleaseDC(nullptr, like);
    RECT whole;
    if (UnionRect(&whole, &rect, &screen) && EqualRect(&whole, &screen)) {
        copyVisible(window, size, surface.dc(), screen);
        return surface.picture();
    }
    for (LONG top = 0; top < size.cy; top += room.cy) {
        for (LONG left = 0; left < size.cx; left += room.cx) {
            moveTo(window, {corner.x - left, corner.y - top});
            copyVisible(window, size, surface.dc(), screen);
        }
    }
    moveTo(window, {rect.left, rect.top});
    return surface.picture();
}

// Puts the picture on another one, with its left upper corner there.
void paste(const Picture& from, POINT at, Picture& to) {
    for (int y = 0; y < from.height; ++y)
        std::copy_n(from.at(0, y), size_t{4} * from.width, to.at(at.x, at.y + y));
}

}  // namespace

Picture pictureOf(HWND window) {
    const NoCaret noCaret;
    // Whether the desktop has told the active window of that by now depends on the moment, and its title
    // shows it.
    if (GetActiveWindow() == window) SendMessageW(window, WM_NCACTIVATE, TRUE, 0);
    const std::vector<HWND> menus = menuWindows();
    if (menus.empty()) return pictureOfOne(window);
    std::vector<HWND> windows = {window};
    windows.insert(windows.end(), menus.rbegin(), menus.rend());
    RECT whole{};
    for (const HWND each : windows) {
        RECT rect;
        GetWindowRect(each, &rect);
        UnionRect(&whole, &whole, &rect);
    }
    Picture all(whole.right - whole.left, whole.bottom - whole.top);
    std::fill(all.pixels.begin(), all.pixels.end(), BESIDE_WINDOWS);
    for (const HWND each : windows) {
        RECT rect;
        GetWindowRect(each, &rect);
        const Picture one = pictureOfOne(each);
        if (one.pixels.empty()) return one;
        paste(one, {rect.left - whole.left, rect.top - whole.top}, all);
    }
    return all;
}
