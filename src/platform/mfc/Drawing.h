// Owners of the platform's drawing objects and device contexts. Each gives back what it took.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace drawing {

struct DeleteGdiObject {
    void operator()(void* object) const { ::DeleteObject(object); }
};

struct DeleteIcon {
    void operator()(HICON icon) const { ::DestroyIcon(icon); }
};

template <class Handle, class Delete>
using Unique = std::unique_ptr<std::remove_pointer_t<Handle>, Delete>;

}  // namespace drawing

using UniqueBitmap = drawing::Unique<HBITMAP, drawing::DeleteGdiObject>;
using UniqueBrush = drawing::Unique<HBRUSH, drawing::DeleteGdiObject>;
using UniqueFont = drawing::Unique<HFONT, drawing::DeleteGdiObject>;
using UniquePen = drawing::Unique<HPEN, drawing::DeleteGdiObject>;
using UniqueRegion = drawing::Unique<HRGN, drawing::DeleteGdiObject>;
// Never for an icon that was loaded with LR_SHARED.
using UniqueIcon = drawing::Unique<HICON, drawing::DeleteIcon>;

// While it lives, `object` (borrowed) is selected into the device context.
class SelectedObject {
  public:
    SelectedObject(HDC dc, HGDIOBJ object) : m_dc(dc), m_former(::SelectObject(dc, object)) {}
    ~SelectedObject() { ::SelectObject(m_dc, m_former); }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

  private:
    HDC m_dc;
    HGDIOBJ m_former;
};

// A device context; how it is given back is told by the classes made from it.
class CDC {
  public:
    explicit CDC(HDC dc) : m_hDC(dc) {}
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    operator HDC() const { return m_hDC; }

    HDC m_hDC;
};

// The client area of a window without its children, or with null the whole screen.
class ClientDC : public CDC {
  public:
    explicit ClientDC(HWND window)
        : CDC(::GetDCEx(window, nullptr, DCX_CACHE | DCX_CLIPCHILDREN)), m_window(window) {}
    ~ClientDC() { ::ReleaseDC(m_window, m_hDC); }

  private:
    HWND m_window;
};

// The part of a window that has to be painted, within WM_PAINT; it counts as painted afterwards.
class PaintDC : public CDC {
  public:
    explicit PaintDC(HWND window) : CDC(nullptr), m_window(window) { m_hDC = ::BeginPaint(window, &m_paint); }
    ~PaintDC() { ::EndPaint(m_window, &m_paint); }

    const RECT& area() const { return m_paint.rcPaint; }

  private:
    HWND m_window;
    PAINTSTRUCT m_paint{};
};

// A device context that was created, and is deleted.
class OwnedDC : public CDC {
  public:
    explicit OwnedDC(HDC dc) : CDC(dc) {}
    ~OwnedDC() { ::DeleteDC(m_hDC); }
};

// A device context in memory, to select a bitmap into.
class CompatibleDC : public CDC {
  public:
    explicit CompatibleDC(HDC like) : CDC(::CreateCompatibleDC(like)) {}
    ~CompatibleDC() { ::DeleteDC(m_hDC); }
};

// A picture in memory of that size in pixels, of the same kind as `like`: what is drawn on it can be shown in
// one go, without flicker. Coordinates are those of the picture.
class MemoryDC : public CompatibleDC {
  public:
    MemoryDC(HDC like, int width, int height)
        : CompatibleDC(like),
          m_bitmap(::CreateCompatibleBitmap(like, width, height)),
          m_former(::SelectObject(m_hDC, m_bitmap.get())),
          m_width(width),
          m_height(height) {}
    ~MemoryDC() { ::SelectObject(m_hDC, m_former); }

    void copyTo(HDC target, int x, int y) const {
        ::BitBlt(target, x, y, m_width, m_height, m_hDC, 0, 0, SRCCOPY);
    }

  private:
    UniqueBitmap m_bitmap;
    HGDIOBJ m_former;
    int m_width;
    int m_height;
};
