#include "host/drive/Shot.h"

#include <wincodec.h>

#include <algorithm>
#include <vector>

#include "host/lisp/Error.h"
#include "host/services/Texts.h"

namespace {

// The pixels of a window: 32 bits each, blue first, rows from the top.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<BYTE> pixels;

    UINT rowBytes() const { return static_cast<UINT>(width) * 4; }
};

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
        Picture picture{m_size.cx, m_size.cy, {}};
        if (!m_section) return picture;
        GdiFlush();
        const auto* first = static_cast<const BYTE*>(m_bits);
        picture.pixels.assign(first, first + static_cast<size_t>(picture.rowBytes()) * m_size.cy);
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

// Copying from the window's own surface gets its children too, and what other windows cover, but not what
// lies off the screen: a window that isn't wholly on it is pushed across it, and back to where it was.
Picture pictureOf(HWND window) {
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

// Holds a reference to a component's object.
template <class Interface>
class Reference {
  public:
    Reference() = default;
    ~Reference() {
        if (m_object) m_object->Release();
    }
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;

    Interface* operator->() const { return m_object; }
    Interface* get() const { return m_object; }
    Interface** out() { return &m_object; }

  private:
    Interface* m_object = nullptr;
};

void check(HRESULT result) {
    if (FAILED(result)) throw result;
}

void encode(const Picture& picture, const std::wstring& path) {
    Reference<IWICImagingFactory> factory;
    Reference<IWICStream> stream;
    Reference<IWICBitmapEncoder> encoder;
    Reference<IWICBitmapFrameEncode> frame;
    check(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                           reinterpret_cast<void**>(factory.out())));
    check(factory->CreateStream(stream.out()));
    check(stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE));
    check(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.out()));
    check(encoder->Initialize(stream.get(), WICBitmapEncoderNoCache));
    check(encoder->CreateNewFrame(frame.out(), nullptr));
    check(frame->Initialize(nullptr));
    check(frame->SetSize(picture.width, picture.height));
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    check(frame->SetPixelFormat(&format));
    // The alpha that a window leaves in its surface means nothing.
    const UINT stride = static_cast<UINT>(picture.width) * 3;
    std::vector<BYTE> opaque(static_cast<size_t>(stride) * picture.height);
    for (size_t i = 0; i < opaque.size() / 3; ++i) {
        std::copy_n(&picture.pixels[i * 4], 3, &opaque[i * 3]);
    }
    check(frame->WritePixels(picture.height, stride, static_cast<UINT>(opaque.size()), opaque.data()));
    check(frame->Commit());
    check(encoder->Commit());
}

}  // namespace

void photograph(HWND window, const std::wstring& path) {
    const Picture picture = pictureOf(window);
    const HRESULT begun = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    HRESULT result = picture.pixels.empty() ? E_OUTOFMEMORY : S_OK;
    try {
        if (SUCCEEDED(result)) encode(picture, path);
    } catch (HRESULT failed) {
        result = failed;
    }
    if (SUCCEEDED(begun)) CoUninitialize();
    if (FAILED(result)) throw lisp::Error(u"can't write the picture " + lispText(path));
}
