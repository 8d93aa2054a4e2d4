#include "src/pictures/Picture.h"

#include <olectl.h>

#include <span>

#include "src/pictures/FaultGuard.h"
#include "src/pictures/PictureGuard.h"
#include "src/pictures/PicturePlace.h"

namespace {

constexpr int HIMETRIC_PER_INCH = 2540;

class ReadFileHandle {
  public:
    explicit ReadFileHandle(const wchar_t* path)
        : m_handle(
              CreateFileW(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    ~ReadFileHandle() {
        if (isOpen()) CloseHandle(m_handle);
    }
    ReadFileHandle(const ReadFileHandle&) = delete;
    ReadFileHandle& operator=(const ReadFileHandle&) = delete;

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    // 0 for a file that is too large for one block, too.
    DWORD size() const {
        LARGE_INTEGER size{};
        return GetFileSizeEx(m_handle, &size) && size.QuadPart <= MAXLONG ? size.LowPart : 0;
    }
    bool read(void* to, DWORD count) const {
        DWORD done = 0;
        return ReadFile(m_handle, to, count, &done, nullptr) && done == count;
    }

  private:
    HANDLE m_handle;
};

// The bytes of a file in a block that its stream owns.
struct Image {
    ComPtr<IStream> stream;
    DWORD size = 0;
};

bool fill(HGLOBAL block, const ReadFileHandle& file, DWORD size) {
    void* const bytes = GlobalLock(block);
    const bool isSound =
        bytes && file.read(bytes, size) && isSoundPicture({static_cast<const uint8_t*>(bytes), size});
    GlobalUnlock(block);
    return isSound;
}

// Without a stream where the file can't be read.
Image imageOf(const wchar_t* path) {
    Image image;
    const ReadFileHandle file(path);
    image.size = file.isOpen() ? file.size() : 0;
    const HGLOBAL block = image.size ? GlobalAlloc(GMEM_MOVEABLE, image.size) : nullptr;
    if (!block) return image;
    const bool isStreamed =
        fill(block, file, image.size) && SUCCEEDED(CreateStreamOnHGlobal(block, TRUE, image.stream.out()));
    if (!isStreamed) GlobalFree(block);
    return image;
}

// The service doesn't know the size of icons of 256 pixels and more.
bool hasSize(IPicture& picture) {
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    return SUCCEEDED(picture.get_Width(&width)) && SUCCEEDED(picture.get_Height(&height)) && width > 0 &&
           height > 0;
}

int pixels(OLE_XSIZE_HIMETRIC length, HDC dc, int dotsPerInch) {
    return MulDiv(length, GetDeviceCaps(dc, dotsPerInch), HIMETRIC_PER_INCH);
}

}  // namespace

ComPtr<IPicture> loadPicture(const wchar_t* path) {
    ComPtr<IPicture> picture;
    const Image image = imageOf(path);
    if (!image.stream) return picture;
    const bool isDecoded = withoutFault([&] {
        OleLoadPicture(image.stream.get(), static_cast<LONG>(image.size), FALSE, IID_IPicture,
                       picture.outVoid());
    });
    if (!isDecoded || (picture && hasSize(*picture))) return picture;
    withoutFault([&] { picture = decodeByImagingComponent(*image.stream); });
    return picture;
}

void drawPicture(IPicture& picture, HDC dc, SIZE area, bool fit) {
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    SHORT type = PICTYPE_UNINITIALIZED;
    picture.get_Width(&width);
    picture.get_Height(&height);
    picture.get_Type(&type);
    const PixelRect place =
        placeOfPicture({pixels(width, dc, LOGPIXELSX), pixels(height, dc, LOGPIXELSY)}, {area.cx, area.cy},
                       type == PICTYPE_METAFILE || type == PICTYPE_ENHMETAFILE, fit);
    if (place == PixelRect()) return;
    const RECT bounds = {0, 0, area.cx, area.cy};
    const int saved = SaveDC(dc);
    SetBkMode(dc, TRANSPARENT);
    // The mode that is smooth, and the origin that belongs to it.
    SetStretchBltMode(dc, HALFTONE);
    SetBrushOrgEx(dc, 0, 0, nullptr);
    // The source's height is negative: the units of pictures run upwards.
    withoutFault([&] {
        picture.Render(dc, place.left, place.top, place.width(), place.height(), 0, height, width, -height,
                       &bounds);
    });
    RestoreDC(dc, saved);
}
