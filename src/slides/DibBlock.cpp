#include "src/slides/DibBlock.h"

#include <cstring>
#include <new>

namespace {

constexpr size_t COLORS = 256;

// While it lives, the platform's stock palette is that of the device context.
class StockPalette {
  public:
    explicit StockPalette(HDC dc)
        : m_dc(dc),
          m_former(::SelectPalette(dc, static_cast<HPALETTE>(::GetStockObject(DEFAULT_PALETTE)), FALSE)) {
        ::RealizePalette(dc);
    }
    ~StockPalette() {
        if (m_former) ::SelectPalette(m_dc, m_former, FALSE);
    }
    StockPalette(const StockPalette&) = delete;
    StockPalette& operator=(const StockPalette&) = delete;

  private:
    HDC m_dc;
    HPALETTE m_former;
};

}  // namespace

std::vector<uint8_t> dibBlock(HBITMAP bitmap, HDC dc, uint32_t compression) {
    BITMAP look{};
    if (compression == BI_BITFIELDS || !::GetObjectW(bitmap, sizeof look, &look)) return {};
    struct {
        BITMAPINFOHEADER header{};
        RGBQUAD palette[COLORS]{};
    } info;
    info.header.biSize = sizeof info.header;
    info.header.biWidth = look.bmWidth;
    info.header.biHeight = look.bmHeight;
    info.header.biPlanes = 1;
    info.header.biBitCount = 8;
    info.header.biCompression = compression;
    const size_t rowBytes = (static_cast<size_t>(look.bmWidth) + 3) / 4 * 4;
    try {
        std::vector<uint8_t> block(sizeof info + rowBytes * look.bmHeight);
        const StockPalette palette(dc);
        if (!::GetDIBits(dc, bitmap, 0, look.bmHeight, &block[sizeof info],
                         reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS))
            return {};
        std::memcpy(block.data(), &info, sizeof info);
        return block;
    } catch (const std::bad_alloc&) {
        return {};
    }
}
