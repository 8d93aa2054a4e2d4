// What the platform's picture service doesn't read, its imaging component may.
#include <olectl.h>
#include <wincodec.h>

#include "src/pictures/Picture.h"
#include "src/pictures/PictureGuard.h"
#include "src/platform/mfc/Drawing.h"

namespace {

constexpr UINT BYTES_PER_PIXEL = 4;

// The first image of a file, in pixels of blue, green, red and alpha, the colors multiplied by the alpha.
// The component is loaded when the first such picture comes: no function of its module is called by name.
ComPtr<IWICFormatConverter> decode(IStream& stream) {
    ComPtr<IWICImagingFactory> factory;
    ComPtr<IWICBitmapDecoder> decoder;
    ComPtr<IWICBitmapFrameDecode> frame;
    ComPtr<IWICFormatConverter> pixels;
    const bool isRead =
        SUCCEEDED(stream.Seek({}, STREAM_SEEK_SET, nullptr)) &&
        SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                   IID_IWICImagingFactory, factory.outVoid())) &&
        SUCCEEDED(factory->CreateDecoderFromStream(&stream, nullptr, WICDecodeMetadataCacheOnDemand,
                                                   decoder.out())) &&
        SUCCEEDED(decoder->GetFrame(0, frame.out())) &&
        SUCCEEDED(factory->CreateFormatConverter(pixels.out())) &&
        SUCCEEDED(pixels->Initialize(frame.get(), GUID_WICPixelFormat32bppPBGRA, WICBitmapDitherTypeNone,
                                     nullptr, 0, WICBitmapPaletteTypeCustom));
    if (!isRead) pixels.reset();
    return pixels;
}

// Null where there is no memory for it, or the file ends before its pixels do.
UniqueBitmap bitmapOf(IWICBitmapSource& source) {
    UINT width = 0, height = 0;
    if (FAILED(source.GetSize(&width, &height)) || !isBearableSize(width, height)) return nullptr;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = static_cast<LONG>(width);
    info.bmiHeader.biHeight = -static_cast<LONG>(height);
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 8 * BYTES_PER_PIXEL;
    void* bits = nullptr;
    UniqueBitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    const UINT stride = width * BYTES_PER_PIXEL;
    if (!bitmap || FAILED(source.CopyPixels(nullptr, stride, stride * height, static_cast<BYTE*>(bits))))
        return nullptr;
    return bitmap;
}

}  // namespace

ComPtr<IPicture> decodeByImagingComponent(IStream& stream) {
    ComPtr<IPicture> picture;
    const ComPtr<IWICFormatConverter> source = decode(stream);
    UniqueBitmap bitmap = source ? bitmapOf(*source) : nullptr;
    if (!bitmap) return picture;
    PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.picType = PICTYPE_BITMAP;
    description.bmp.hbitmap = bitmap.get();
    // The picture takes the bitmap over.
    if (SUCCEEDED(OleCreatePictureIndirect(&description, IID_IPicture, TRUE, picture.outVoid())))
        bitmap.release();
    return picture;
}
