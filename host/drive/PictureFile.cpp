#include "host/drive/PictureFile.h"

#include <windows.h>

#include <wincodec.h>

#include <algorithm>

#include "host/lisp/Error.h"
#include "host/services/Texts.h"

namespace {

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

// Components work while it lives.
class Components {
  public:
    Components() : m_begun(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~Components() {
        if (SUCCEEDED(m_begun)) CoUninitialize();
    }
    Components(const Components&) = delete;
    Components& operator=(const Components&) = delete;

  private:
    HRESULT m_begun;
};

void makeFactory(Reference<IWICImagingFactory>& factory) {
    check(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                           reinterpret_cast<void**>(factory.out())));
}

void encode(const Picture& picture, const std::wstring& path) {
    Reference<IWICImagingFactory> factory;
    Reference<IWICStream> stream;
    Reference<IWICBitmapEncoder> encoder;
    Reference<IWICBitmapFrameEncode> frame;
    makeFactory(factory);
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

Picture decode(const std::wstring& path) {
    Reference<IWICImagingFactory> factory;
    Reference<IWICBitmapDecoder> decoder;
    Reference<IWICBitmapFrameDecode> frame;
    Reference<IWICFormatConverter> converter;
    makeFactory(factory);
    check(factory->CreateDecoderFromFilename(path.c_str(), nullptr, GENERIC_READ,
                                             WICDecodeMetadataCacheOnDemand, decoder.out()));
    check(decoder->GetFrame(0, frame.out()));
    check(factory->CreateFormatConverter(converter.out()));
    check(converter->Initialize(frame.get(), GUID_WICPixelFormat32bppBGR, WICBitmapDitherTypeNone, nullptr, 0,
                                WICBitmapPaletteTypeCustom));
    UINT width = 0, height = 0;
    check(converter->GetSize(&width, &height));
    Picture picture(static_cast<int>(width), static_cast<int>(height));
    check(converter->CopyPixels(nullptr, width * 4, static_cast<UINT>(picture.pixels.size()),
                                picture.pixels.data()));
    return picture;
}

}  // namespace

void writePicture(const Picture& picture, const std::wstring& path) {
    const Components components;
    try {
        check(picture.pixels.empty() ? E_OUTOFMEMORY : S_OK);
        encode(picture, path);
    } catch (HRESULT) {
        throw lisp::Error(u"can't write the picture " + lispText(path));
    }
}

Picture readPicture(const std::wstring& path) {
    const Components components;
    try {
        return decode(path);
    } catch (HRESULT) {
        throw lisp::Error(u"can't read the picture " + lispText(path));
    }
}
