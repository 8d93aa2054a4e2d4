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

// Copying from the window's own surface gets its children too, and what other windows cover.
Picture pictureOf(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    RECT rect;
    GetWindowRect(window, &rect);
    Picture picture{rect.right - rect.left, rect.bottom - rect.top, {}};

    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.width;
    info.bmiHeader.biHeight = -picture.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const HDC source = GetWindowDC(window);
    const HDC copy = CreateCompatibleDC(source);
    void* bits = nullptr;
    const HBITMAP section = CreateDIBSection(source, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (section) {
        const HGDIOBJ previous = SelectObject(copy, section);
        BitBlt(copy, 0, 0, picture.width, picture.height, source, 0, 0, SRCCOPY);
        GdiFlush();
        const auto* first = static_cast<const BYTE*>(bits);
        picture.pixels.assign(first, first + static_cast<size_t>(picture.rowBytes()) * picture.height);
        SelectObject(copy, previous);
        DeleteObject(section);
    }
    DeleteDC(copy);
    ReleaseDC(window, source);
    return picture;
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
