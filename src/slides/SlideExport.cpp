// Slides as pictures that other programs show.
#include <array>
#include <vector>

#include "src/platform/mfc/Drawing.h"
#include "src/slides/CSlideObject.h"
#include "src/slides/DcSurface.h"
#include "src/slides/DibBlock.h"
#include "src/slides/SavedFile.h"
#include "src/slides/SlidePath.h"

namespace {

constexpr uint32_t BLACK = 0x000000, WHITE = 0xFFFFFF;

PixelRect pictureRect(SlideSize extents, int sizeCode) {
    switch (sizeCode) {
        case 1:
            return {0, 0, 16, 15};
        case 2:
            return {0, 0, 24, 23};
        case 3:
            return {0, 0, 32, 32};
        default:
            return {0, 0, extents.cx, extents.cy};
    }
}

// In pixels, whatever the mapping is; that stays.
void fillBlack(HDC dc, const PixelRect& rect) {
    ::SaveDC(dc);
    ::SetMapMode(dc, MM_TEXT);
    ::SetViewportOrgEx(dc, 0, 0, nullptr);
    const RECT area{rect.left, rect.top, rect.right, rect.bottom};
    ::FillRect(dc, &area, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
    ::RestoreDC(dc, -1);
}

// A metafile that is recorded in memory and thrown away at the end.
class MemoryMetafile {
  public:
    MemoryMetafile() : m_dc(::CreateMetaFileW(nullptr)) {}
    ~MemoryMetafile() {
        if (m_file || m_dc.m_hDC) ::DeleteMetaFile(m_file ? m_file : ::CloseMetaFile(m_dc));
    }
    MemoryMetafile(const MemoryMetafile&) = delete;
    MemoryMetafile& operator=(const MemoryMetafile&) = delete;

    const CDC& dc() const { return m_dc; }

    // Ends the recording. Empty where it failed.
    std::vector<uint8_t> bits() {
        m_file = ::CloseMetaFile(m_dc);
        m_dc.m_hDC = nullptr;
        if (!m_file) return {};
        std::vector<uint8_t> bits(::GetMetaFileBitsEx(m_file, 0, nullptr));
        ::GetMetaFileBitsEx(m_file, static_cast<UINT>(bits.size()), bits.data());
        return bits;
    }

  private:
    CDC m_dc;
    HMETAFILE m_file = nullptr;
};

// What tells other programs where a metafile belongs: the rectangle (0, 0, extents) at so many units an inch.
std::array<uint8_t, 22> placeableHeader(SlideSize extents, int unitsPerInch) {
    constexpr size_t CHECKED_WORDS = 10;
    const auto word = [](int32_t value) { return static_cast<uint16_t>(value); };
    std::array<uint16_t, CHECKED_WORDS + 1> words{
        0xCDD7, 0x9AC6, 0, 0, 0, word(extents.cx), word(extents.cy), word(unitsPerInch)};
    for (size_t at = 0; at < CHECKED_WORDS; ++at) words[CHECKED_WORDS] ^= words[at];
    std::array<uint8_t, 22> header{};
    for (size_t at = 0; at < header.size(); ++at)
        header[at] = static_cast<uint8_t>(words[at / 2] >> (at % 2 * 8));
    return header;
}

}  // namespace

int CSlideObject::SaveBmp(const CString& path, int sizeCode) const {
    if (!hasExtension(path, L".bmp") || !HasImage() || m_highX == 0 || m_highY == 0) return 0;
    const PixelRect rect = pictureRect(GetExtents(), sizeCode);
    const ClientDC screen(nullptr);
    const UniqueBitmap bitmap(::CreateCompatibleBitmap(screen, rect.width(), rect.height()));
    if (!bitmap) return 0;
    {
        const OwnedDC memory(::CreateCompatibleDC(screen));
        const SelectedObject selected(memory, bitmap.get());
        DcSurface surface(memory);
        PrepareDC(surface, rect, 1, 0);
        SetColors(surface, BLACK, WHITE);
        fillBlack(memory, rect);
        Draw(surface, 0);
    }
    return WriteDibFile(path, dibBlock(bitmap.get(), screen, BI_RGB));
}

int CSlideObject::SaveWmf(const CString& path) const {
    if (!hasExtension(path, L".wmf") || !HasImage() || m_highX == 0 || m_highY == 0) return 0;
    MemoryMetafile metafile;
    if (!metafile.dc()) return 0;
    DcSurface surface(metafile.dc());
    surface.SetMapMode(SlideMapMode::Anisotropic);
    ::SetWindowOrgEx(metafile.dc(), 0, 0, nullptr);
    surface.SetWindowExt(GetExtents());
    SetColors(surface, WHITE, BLACK);
    DrawFlipped(surface, m_highY, 0);
    const auto bits = metafile.bits();
    const int unitsPerInch = ::GetDeviceCaps(ClientDC(nullptr), LOGPIXELSX);
    const int saved = saveFile(path, CFile::Sharing::All, [&](CFile& file) {
        file.Write(placeableHeader(GetExtents(), unitsPerInch));
        file.Write(bits);
    });
    if (saved && bits.empty()) {
        CFile::Remove(path);
        return 0;
    }
    return saved;
}
