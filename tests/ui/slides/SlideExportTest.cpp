// Exported slides, as image tiles read them back. The files stay in the folder WEX_EXPORTS, if that is set,
// for other programs to look at.
#include <windows.h>

#include <gtest/gtest.h>
#include <ole2.h>

#include <cstring>

#include "src/pictures/Picture.h"
#include "tests/support/Canvas.h"
#include "tests/support/TempFolder.h"
#include "tests/ui/slides/QuarterSlide.h"

namespace {

using Bytes = std::vector<uint8_t>;

class SlideExport : public testing::Test {
  protected:
    SlideExport() { OleInitialize(nullptr); }
    ~SlideExport() override { OleUninitialize(); }

    CString path(const wchar_t* name) const {
        const char* kept = std::getenv("WEX_EXPORTS");
        return ((kept ? std::filesystem::path(kept) : m_folder.path) / name).wstring();
    }

  private:
    TempFolder m_folder;
};

// The picture of a file as an image tile shows it, drawn over all of a white canvas.
struct Shown : Canvas {
    Shown(const CString& path, int width, int height) : Canvas(width, height) {
        const RECT all{0, 0, width, height};
        FillRect(dc(), &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        const ComPtr<IPicture> picture = loadPicture(path.c_str());
        if (picture) drawPicture(*picture, dc(), {width, height}, true);
    }
};

uint32_t u32(const Bytes& bytes, size_t at) {
    uint32_t value;
    std::memcpy(&value, &bytes.at(at + 3) - 3, 4);
    return value;
}

TEST_F(SlideExport, AsBitmapHasTheSizeThatTheCodeTells) {
    const OpenSlide slide = quarter();
    const SIZE sizes[] = {{100, 50}, {16, 15}, {24, 23}, {32, 32}};
    for (int code = 0; code < 4; ++code) {
        const CString file = path(L"size.bmp");
        ASSERT_EQ(slide.SaveBmp(file, code), 1);
        const Bytes bytes = bytesOf<Bytes>(file.c_str());
        const uint32_t rowBytes = (sizes[code].cx + 3) / 4 * 4;
        EXPECT_EQ(bytes.size(), 14 + 40 + 1024 + rowBytes * sizes[code].cy);
        EXPECT_EQ(u32(bytes, 2), bytes.size());
        EXPECT_EQ(u32(bytes, 10), 14u + 40 + 1024);
        EXPECT_EQ(u32(bytes, 18), static_cast<uint32_t>(sizes[code].cx));
        EXPECT_EQ(u32(bytes, 22), static_cast<uint32_t>(sizes[code].cy));
        EXPECT_EQ(u32(bytes, 26), 0x00080001u);
    }
}

TEST_F(SlideExport, AsBitmapIsWhiteAndColorsOnBlack) {
    // The middle is red whatever the shape of the screen's pixels.
    const OpenSlide slide(MadeSlide({1, true}, 60, 60)
                              .color(1)
                              .fill({{20, 20}, {40, 20}, {40, 40}, {20, 40}})
                              .color(0)
                              .vector(18, 30, 42, 30)
                              .end());
    const CString file = path(L"slide.BMP");
    ASSERT_EQ(slide.SaveBmp(file, 0), 1);
    const Shown shown(file, 60, 60);
    EXPECT_EQ(shown.at(1, 1), BLACK);
    EXPECT_EQ(shown.at(30, 34), RED);
    int white = 0;
    for (int y = 0; y < 60; ++y) white += shown.at(30, y) == WHITE;
    EXPECT_EQ(white, 1);
}

TEST_F(SlideExport, AsMetafileIsPlaceableAndBlackAndColorsOnWhite) {
    const CString file = path(L"slide.wmf");
    ASSERT_EQ(quarter().SaveWmf(file), 1);
    const Bytes bytes = bytesOf<Bytes>(file.c_str());
    EXPECT_EQ(u32(bytes, 8), 100u << 16);
    EXPECT_EQ(u32(bytes, 12) & 0xFFFF, 50u);
    EXPECT_EQ(u32(bytes, 12) >> 16, static_cast<uint32_t>(GetDeviceCaps(ClientDC(nullptr), LOGPIXELSX)));
    uint16_t checksum = 0;
    for (size_t at = 0; at <= 20; at += 2) checksum ^= static_cast<uint16_t>(bytes[at] | bytes[at + 1] << 8);
    EXPECT_EQ(checksum, 0);
    const Shown shown(file, 200, 100);
    EXPECT_EQ(shown.at(2, 97), RED);
    EXPECT_EQ(shown.at(104, 97), WHITE);
    int green = 0;
    for (int x = 0; x < 200; ++x) green += shown.at(x, 39) == GREEN || shown.at(x, 38) == GREEN;
    EXPECT_GT(green, 190);
}

TEST_F(SlideExport, NeedsAnImageWithExtentsAndTheRightExtension) {
    const OpenSlide flat(MadeSlide({2, true}, 0, 5).end());
    for (const CSlideObject& slide : {CSlideObject(), CSlideObject(flat)}) {
        EXPECT_EQ(slide.SaveBmp(path(L"none.bmp"), 1), 0);
        EXPECT_EQ(slide.SaveWmf(path(L"none.wmf")), 0);
    }
    EXPECT_EQ(quarter().SaveBmp(path(L"none.wmf"), 1), 0);
    EXPECT_EQ(quarter().SaveWmf(path(L"none.bmp")), 0);
    EXPECT_EQ(quarter().SaveBmp(path(L"no\\folder.bmp"), 1), 0);
    EXPECT_EQ(quarter().SaveWmf(path(L"no\\folder.wmf")), 0);
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::path(path(L"none.bmp").c_str())));
}

}  // namespace
