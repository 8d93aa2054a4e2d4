#include "tests/ui/pictures/HugePictures.h"

#include <ole2.h>
#include <wincodec.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "src/pictures/ComPtr.h"

namespace {

constexpr UINT WIDTH = 6000, HEIGHT = 4000;

template <class Number>
void append(Bytes& bytes, std::initializer_list<Number> numbers) {
    for (const Number number : numbers) {
        const auto* at = reinterpret_cast<const char*>(&number);
        bytes.insert(bytes.end(), at, at + sizeof number);
    }
}

Bytes bytesOf(IStream& stream) {
    HGLOBAL block = nullptr;
    STATSTG state{};
    GetHGlobalFromStream(&stream, &block);
    stream.Stat(&state, STATFLAG_NONAME);
    const auto* at = static_cast<const char*>(GlobalLock(block));
    Bytes bytes(at, at + state.cbSize.LowPart);
    GlobalUnlock(block);
    return bytes;
}

// Both halves, over and over.
void drawHalves(HDC dc) {
    for (const bool below : {false, true}) {
        SelectObject(dc, GetStockObject(below ? WHITE_BRUSH : BLACK_BRUSH));
        SelectObject(dc, GetStockObject(below ? WHITE_PEN : BLACK_PEN));
        const int top = below ? HEIGHT / 2 : 0;
        for (int i = 0; i < 5000; ++i) Rectangle(dc, 0, top, WIDTH, top + static_cast<int>(HEIGHT) / 2);
    }
}

}  // namespace

Bytes hugeImage(const GUID& container) {
    // Wine takes two seconds for a million pixels of a GIF.
    const UINT part = container == GUID_ContainerFormatGif ? 5 : 1;
    const UINT width = WIDTH / part, height = HEIGHT / part;
    ComPtr<IWICImagingFactory> factory;
    ComPtr<IStream> stream;
    ComPtr<IWICBitmapEncoder> encoder;
    ComPtr<IWICBitmapFrameEncode> frame;
    ComPtr<IWICPalette> palette;
    ComPtr<IWICBitmap> bitmap;
    CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                     factory.outVoid());
    CreateStreamOnHGlobal(nullptr, TRUE, stream.out());
    factory->CreateEncoder(container, nullptr, encoder.out());
    factory->CreatePalette(palette.out());
    palette->InitializePredefined(WICBitmapPaletteTypeFixedGray256, FALSE);
    std::vector<BYTE> pixels(size_t{width} * height);
    std::fill(pixels.begin() + pixels.size() / 2, pixels.end(), 0xFF);
    const bool isIndexed = container == GUID_ContainerFormatGif || container == GUID_ContainerFormatBmp;
    factory->CreateBitmapFromMemory(width, height,
                                    isIndexed ? GUID_WICPixelFormat8bppIndexed : GUID_WICPixelFormat8bppGray,
                                    width, static_cast<UINT>(pixels.size()), pixels.data(), bitmap.out());
    if (isIndexed) bitmap->SetPalette(palette.get());
    encoder->Initialize(stream.get(), WICBitmapEncoderNoCache);
    if (isIndexed) encoder->SetPalette(palette.get());
    encoder->CreateNewFrame(frame.out(), nullptr);
    frame->Initialize(nullptr);
    frame->WriteSource(bitmap.get(), nullptr);
    frame->Commit();
    encoder->Commit();
    return bytesOf(*stream);
}

Bytes hugeIcon() {
    constexpr uint32_t SIDE = 2000, ROW = (SIDE + 31) / 32 * 4, HEADER = 40, PALETTE = 8;
    Bytes bytes;
    append<uint16_t>(bytes, {0, 1, 1, 0, 0, 1, 1});
    append<uint32_t>(bytes, {HEADER + PALETTE + 2 * ROW * SIDE, 22});
    append<uint32_t>(bytes, {HEADER, SIDE, 2 * SIDE, 1 | 1 << 16, 0, 0, 0, 0, 0, 0});
    append<uint32_t>(bytes, {0x000000, 0xFFFFFF});
    // From below: white, black, and the mask of all points.
    bytes.insert(bytes.end(), ROW * SIDE / 2, '\xFF');
    bytes.insert(bytes.end(), ROW * SIDE / 2, '\0');
    bytes.insert(bytes.end(), ROW * SIDE, '\0');
    return bytes;
}

Bytes hugeMetafile() { return metafile({WIDTH, HEIGHT}, &drawHalves); }

Bytes hugeEnhMetafile() { return enhMetafile({WIDTH, HEIGHT}, &drawHalves); }

Bytes metafile(SIZE size, const std::function<void(HDC)>& draw) {
    const HDC dc = CreateMetaFileW(nullptr);
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowExtEx(dc, size.cx, size.cy, nullptr);
    draw(dc);
    const HMETAFILE file = CloseMetaFile(dc);
    const auto word = [](LONG number) { return static_cast<uint16_t>(number); };
    uint16_t header[] = {0xCDD7, 0x9AC6, 0, 0, 0, word(size.cx), word(size.cy), 96, 0, 0, 0};
    for (size_t at = 0; at < 10; ++at) header[10] ^= header[at];
    Bytes bytes(sizeof header + GetMetaFileBitsEx(file, 0, nullptr));
    std::memcpy(bytes.data(), header, sizeof header);
    GetMetaFileBitsEx(file, static_cast<UINT>(bytes.size() - sizeof header), &bytes[sizeof header]);
    DeleteMetaFile(file);
    return bytes;
}

Bytes enhMetafile(SIZE size, const std::function<void(HDC)>& draw) {
    // In hundredths of a millimeter; the platform draws in pixels of the screen.
    const HDC screen = GetDC(nullptr);
    const RECT frame = {
        0, 0, MulDiv(size.cx, 100 * GetDeviceCaps(screen, HORZSIZE), GetDeviceCaps(screen, HORZRES)),
        MulDiv(size.cy, 100 * GetDeviceCaps(screen, VERTSIZE), GetDeviceCaps(screen, VERTRES))};
    const HDC dc = CreateEnhMetaFileW(screen, nullptr, &frame, nullptr);
    ReleaseDC(nullptr, screen);
    draw(dc);
    const HENHMETAFILE file = CloseEnhMetaFile(dc);
    Bytes bytes(GetEnhMetaFileBits(file, 0, nullptr));
    GetEnhMetaFileBits(file, static_cast<UINT>(bytes.size()), reinterpret_cast<BYTE*>(bytes.data()));
    DeleteEnhMetaFile(file);
    return bytes;
}
