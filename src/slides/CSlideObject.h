// One slide: the host's recorded vector picture, from a ".sld" file or a slide library. Its image is kept as
// the bytes of the file and read anew each time it is drawn. Portable, but for SaveBmp and SaveWmf.
//
// Operations give 1 when they did what they are for, and 0 otherwise; none shows a message.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "src/platform/base/CFile.h"
#include "src/platform/base/CObject.h"
#include "src/platform/base/CString.h"
#include "src/platform/base/PixelRect.h"
#include "src/slides/SlideColors.h"
#include "src/slides/SlideFormat.h"
#include "src/slides/SlideRecordReader.h"
#include "src/slides/SlideSurface.h"

class CSlideObject : public CObject {
    DECLARE_DYNAMIC(CSlideObject)

  public:
    CSlideObject() = default;
    CSlideObject(const CSlideObject& other);
    CSlideObject& operator=(CSlideObject source);

    int Clear();

    // Clears, and loads what the path names: a ".sld" file, a library's member "library(name)", or a
    // library's last slide. An empty path leaves the object empty and gives 1.
    int Load(const CString& path);
    // These two don't clear before they know that there is a file.
    int LoadFromFile(const CString& path);
    int LoadFromLibrary(const CString& path);
    // Reads `count` bytes at the file's current position; `file` is borrowed and may be null.
    int LoadFromStream(const CString& name, CFile* file, uint32_t count);
    // The gate, and the header behind it. `image` has as many bytes as were stored as the object's size.
    int Validate(const uint8_t* image);
    static bool IsLibraryPath(const CString& path);

    CString GetName() const;
    const CString& GetPath() const { return m_path; }
    void SetPath(const CString& path) { m_path = path; }
    bool HasImage() const { return !m_data.empty(); }
    // 33 for an empty object.
    uint32_t GetDataSize() const;
    SlideSize GetExtents() const { return {m_highX, m_highY}; }
    uint8_t GetLevel() const { return m_level; }
    static uint16_t ReadU16(const uint8_t* at, int littleEndian) { return readU16(at, littleEndian); }
    static uint16_t ReadMagnitude(const uint8_t* at, int littleEndian) {
        return readMagnitude(at, littleEndian);
    }

    // Maps the slide's space to (0, 0, rect.right, rect.bottom) for Draw; left and top play no part.
    // Isotropic keeps the proportions, then either within the rectangle and centred, or with `fit` over its
    // whole width or height.
    virtual void PrepareDC(SlideSurface& dc, const PixelRect& rect, int isotropic, int fit) const;
    // Also stores the foreground in entries 0, 7 and 256 of g_slideColors. Gives the former text colour.
    virtual uint32_t SetColors(SlideSurface& dc, uint32_t background, uint32_t foreground) const;
    // In slide units, as PrepareDC maps them. Monochrome draws all in the text colour and fills with the
    // brush that the surface has.
    virtual void Draw(SlideSurface& dc, int monochrome) const;
    // With y growing downwards: every y is subtracted from `height`.
    virtual void DrawFlipped(SlideSurface& dc, int32_t height, int monochrome) const;
    // Scaled into a rectangle of the surface's own units, which needs no mapping.
    virtual void DrawInRect(SlideSurface& dc, const PixelRect& rect, int monochrome, int keepAspect) const;

    // The image as it is, to a ".sld" file and to an open file; the latter gives how many bytes it wrote.
    int SaveSld(const CString& path) const;
    uint32_t WriteData(CFile* file) const;
    // White and colours on black, 8 bits a pixel. 16 x 15 pixels for size code 1, 24 x 23 for 2, 32 x 32 for
    // 3, otherwise one pixel for each slide unit.
    int SaveBmp(const CString& path, int sizeCode) const;
    // A placeable metafile, black and colours on white.
    int SaveWmf(const CString& path) const;
    // Any device-independent bitmap (header, palette, rows) as a ".bmp" file.
    static int WriteDibFile(const CString& path, std::span<const uint8_t> block);

  protected:
    // Takes an image past the gate's comparison: all of its other checks are made. Tests are its only
    // callers.
    int Adopt(std::vector<uint8_t> image, const CString& path);

  private:
    std::span<const uint8_t> image() const;
    SlideRecordReader records() const;
    int take(std::vector<uint8_t> image, const CString& path);
    bool takeHeader(std::span<const uint8_t> image);
    void drop();

    CString m_path;
    std::vector<uint8_t> m_data;
    // Not always that of m_data: a refused load may leave the size that it was asked for.
    uint32_t m_size = 0;
    uint8_t m_level = 2;
    int32_t m_littleEndian = 1;
    int32_t m_highX = 0;
    int32_t m_highY = 0;
};
