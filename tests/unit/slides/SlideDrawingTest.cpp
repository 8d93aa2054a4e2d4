// What the records of a slide draw, call by call.
#include <gtest/gtest.h>

#include "src/slides/SlideDrawing.h"
#include "src/slides/SlideMapping.h"
#include "tests/support/slides/MadeSlide.h"
#include "tests/unit/slides/RecordingSurface.h"

namespace {

constexpr SlideForm PLAIN = {2, true};

MadeSlide plain() { return MadeSlide(PLAIN, 100, 100); }

std::string drawn(const std::vector<uint8_t>& image, int monochrome = 0) {
    RecordingSurface surface;
    OpenSlide(image).Draw(surface, monochrome);
    return surface.take();
}

std::string drawnFlipped(const std::vector<uint8_t>& image, int height) {
    RecordingSurface surface;
    OpenSlide(image).DrawFlipped(surface, height, 0);
    return surface.take();
}

std::string drawnInRect(const std::vector<uint8_t>& image, const PixelRect& rect, int keepAspect) {
    RecordingSurface surface;
    OpenSlide(image).DrawInRect(surface, rect, 0, keepAspect);
    return surface.take();
}

TEST(SlideDrawing, IsTheSameInAllForms) {
    for (const SlideForm form : EVERY_FORM) {
        const MadeSlide slide = MadeSlide(form, 500, 400)
                                    .vector(1, 2, 0xFFFD, 0xFFF0)
                                    .vector(0x0102, 0xFFFF, 0x8000, 0x7FFF)
                                    .offsetVector(1, 255, 3, 4)
                                    .endpoint(255, 2)
                                    .fill({{1, 0xFFFC}, {0xFFFE, 0x0304}})
                                    .color(1)
                                    .end();
        EXPECT_EQ(
            drawn(slide),
            "MoveTo 3,16; LineTo 1,2; MoveTo 32768,32767; LineTo 258,1; MoveTo 261,5; LineTo 259,256; LineTo "
            "514,258; SetPolyFillMode 1; Polygon 1,4 2,772; CreatePen ff; CreateBrush ff; SelectPen 10; "
            "SelectBrush 11; SelectPen 1; "
            "Destroy 10; SelectBrush 2; Destroy 11")
            << form.level << form.littleEndian;
    }
}

TEST(SlideDrawing, OfLiteralBytesInBothOrders) {
    std::vector<uint8_t> big = {0x4B, 0x6F, 0x72, 0x76, 0x61, 0x6C, 0x65, 0x20, 0x53, 0x6C, 0x69, 0x64,
                                0x65, 0x0D, 0x0A, 0x1A, 0x00, 0x00, 0x01, 0x02, 0x80, 0x01, 0xE0, 0,
                                0,    0,    0,    0,    0,    0,    0,    0,    0,    0};
    const std::vector<uint8_t> records = {0x01, 0x2C, 0x00, 0x0A, 0x00, 0x14, 0x01, 0x00,  // vector
                                          0xFB, 0x05, 0x06, 0x07, 0x08, 0xFE, 0x09, 0x0A,  // offset, endpoint
                                          0xFC, 0x00};
    big.insert(big.end(), records.begin(), records.end());
    EXPECT_EQ(drawn(big), "MoveTo 20,256; LineTo 300,10; MoveTo 307,18; LineTo 305,16; LineTo 314,26");
    EXPECT_EQ(OpenSlide(big).GetExtents(), (SlideSize{640, 480}));
}

TEST(SlideDrawing, EndsWhereARecordIsUnknownOrRunsPastTheEnd) {
    const std::string one = "MoveTo 3,4; LineTo 1,2";
    for (const int high : {0x80, 0xFA, 0xFC})
        EXPECT_EQ(drawn(plain().vector(1, 2, 3, 4).word(high << 8).vector(5, 6, 7, 8)), one);
    const std::vector<uint8_t> whole = plain().vector(1, 2, 3, 4);
    const std::vector<uint8_t> tails[] = {plain().vector(5, 6, 7, 8), plain().offsetVector(1, 2, 3, 4),
                                          plain().endpoint(1, 2), plain().fill({{1, 2}, {3, 4}}),
                                          plain().color(3)};
    for (const auto& tail : tails)
        for (size_t size = 31; size < tail.size(); ++size) {
            std::vector<uint8_t> image = whole;
            image.insert(image.end(), tail.begin() + 31, tail.begin() + static_cast<ptrdiff_t>(size));
            EXPECT_EQ(drawn(image), one);
        }
    EXPECT_EQ(drawn(plain()), "");
}

TEST(SlideDrawing, TakesNoPointBeforeTheFirstVectorFromAnywhere) {
    EXPECT_EQ(drawn(plain().endpoint(3, 4).offsetVector(1, 1, 2, 2)), "LineTo 3,4; MoveTo 5,6; LineTo 4,5");
    // Fills and colours leave the last point alone.
    EXPECT_EQ(
        drawn(plain().vector(9, 9, 1, 1).fill({{5, 5}}).fill({{6, 7}}).endpoint(0, 0)),
        "MoveTo 1,1; LineTo 9,9; SetPolyFillMode 1; Polygon 5,5; SetPolyFillMode 1; Polygon 6,7; LineTo "
        "9,9");
    EXPECT_EQ(drawn(plain().fill({}).vector(1, 2, 3, 4)), "MoveTo 3,4; LineTo 1,2");
}

TEST(SlideDrawing, MakesADotOfALineWithinAPixel) {
    EXPECT_EQ(drawn(plain().vector(5, 5, 5, 5).offsetVector(1, 1, 1, 1)),
              "MoveTo 6,5; LineTo 5,5; MoveTo 7,6; LineTo 6,6");
    const OpenSlide slide(plain().vector(41, 5, 45, 5).vector(49, 5, 50, 5));
    RecordingSurface coarse;
    coarse.unitsPerPixel = 10;
    slide.Draw(coarse, 0);
    EXPECT_EQ(coarse.take(), "MoveTo 50,5; LineTo 41,5; MoveTo 50,5; LineTo 49,5");
    RecordingSurface metafile;
    metafile.unitsPerPixel = 0;
    OpenSlide(plain().vector(5, 5, 5, 5).vector(1, 1, 2, 1)).Draw(metafile, 0);
    EXPECT_EQ(metafile.take(), "MoveTo 6,5; LineTo 5,5; MoveTo 2,1; LineTo 1,1");
}

TEST(SlideDrawing, ChangesPenAndBrushWithEachColor) {
    EXPECT_EQ(
        drawn(plain().color(1).color(250)),
        "CreatePen ff; CreateBrush ff; SelectPen 10; SelectBrush 11; CreatePen 545454; CreateBrush 545454; "
        "SelectPen 12; Destroy 10; SelectBrush 13; Destroy 11; SelectPen 1; Destroy 12; SelectBrush 2; "
        "Destroy 13");
    RecordingSurface surface;
    const OpenSlide slide(plain().color(1).fill({{1, 1}, {2, 1}, {1, 2}}).color(2));
    surface.SetTextColor(0xABCDEF);
    surface.take();
    slide.Draw(surface, 1);
    EXPECT_EQ(surface.take(),
              "CreatePen abcdef; SelectPen 10; SetPolyFillMode 1; Polygon 1,1 2,1 1,2; CreatePen abcdef; "
              "SelectPen 11; Destroy 10; SelectPen 1; Destroy 11");
}

TEST(SlideDrawing, PutsStockToolsInPlaceWhereTheOwnOnesAreNotTold) {
    RecordingSurface surface;
    surface.tellsDisplaced = false;
    OpenSlide(plain().color(1)).Draw(surface, 0);
    EXPECT_EQ(
        surface.take(),
        "CreatePen ff; CreateBrush ff; SelectPen 10; SelectBrush 11; SelectPen 0; Destroy 10; SelectBrush 0; "
        "Destroy 11");
}

TEST(SlideDrawing, EndsWithAnExceptionWhereNoToolCanBeHad) {
    for (const int monochrome : {0, 1}) {
        RecordingSurface surface;
        const OpenSlide slide(plain().color(1).color(2));
        surface.hasTools = false;
        EXPECT_THROW(slide.Draw(surface, monochrome), std::bad_alloc);
    }
}

TEST(SlideDrawing, FlippedSubtractsEveryY) {
    const auto slide =
        plain().vector(1, 2, 3, 4).offsetVector(1, 2, 3, 4).endpoint(5, 6).fill({{7, 8}}).vector(9, 9, 9, 9);
    EXPECT_EQ(
        drawnFlipped(slide, 100),
        "MoveTo 3,96; LineTo 1,98; MoveTo 4,94; LineTo 2,96; LineTo 7,90; SetPolyFillMode 1; Polygon 7,92; "
        "MoveTo 10,91; LineTo 9,91");
    // Before a vector there is no height to start from.
    EXPECT_EQ(drawnFlipped(plain().endpoint(5, 6), 100), "LineTo 5,-6");
}

TEST(SlideDrawing, InARectangleScalesAndTruncatesEachOffset) {
    // 0.39 of a unit across, 0.19 up.
    const PixelRect rect{10, 20, 49, 39};
    EXPECT_EQ(drawnInRect(plain().vector(0, 0, 100, 100).vector(99, 99, 50, 10).fill({{5, 6}}), rect, 0),
              "MoveTo 49,20; LineTo 10,39; MoveTo 29,38; LineTo 48,21; SetPolyFillMode 1; Polygon 11,38");
    EXPECT_EQ(
        drawnInRect(plain().vector(10, 10, 0, 0).endpoint(5, 11).endpoint(5, 11).offsetVector(3, 6, 2, 5),
                    rect, 0),
        "MoveTo 10,39; LineTo 13,38; LineTo 14,36; LineTo 15,34; MoveTo 15,34; LineTo 16,33");
    EXPECT_EQ(drawnInRect(plain().endpoint(10, 11), rect, 0), "LineTo 3,-2");
    // A square slide in a wide rectangle stands in its middle, in a high one too, in a mirrored one
    // somewhere.
    const MadeSlide diagonal = plain().vector(0, 0, 100, 100);
    EXPECT_EQ(drawnInRect(diagonal, {10, 20, 211, 70}, 1), "MoveTo 135,20; LineTo 85,70");
    EXPECT_EQ(drawnInRect(diagonal, {10, 20, 60, 221}, 1), "MoveTo 60,96; LineTo 10,146");
    EXPECT_EQ(drawnInRect(diagonal, {60, 70, 10, 20}, 0), "MoveTo 10,70; LineTo 60,20");
    EXPECT_EQ(drawnInRect(MadeSlide(PLAIN, 0, 100).vector(0, 0, 1, 1), rect, 0), "");
}

TEST(SlideDrawing, DrawsNothingWithoutAnImage) {
    RecordingSurface surface;
    const CSlideObject slide;
    slide.PrepareDC(surface, {0, 0, 10, 10}, 1, 1);
    slide.Draw(surface, 0);
    slide.DrawFlipped(surface, 10, 0);
    slide.DrawInRect(surface, {0, 0, 10, 10}, 0, 0);
    EXPECT_EQ(surface.take(), "");
    slide.SetColors(surface, 1, 0xFFFFFF);
    EXPECT_EQ(surface.take(), "SetBkColor 1; SetTextColor ffffff");
}

TEST(SlideColors, HaveTheForegroundOfTheLastSlide) {
    const auto start = g_slideColors;
    EXPECT_EQ(start[7], 0xFFFFFFu);
    EXPECT_EQ(start[256], 0xFFFFFFu);
    RecordingSurface surface;
    const OpenSlide slide(plain().color(0).color(7));
    EXPECT_EQ(slide.SetColors(surface, 0x111111, 0x123456), 0u);
    EXPECT_EQ(slide.SetColors(surface, 0x111111, 0x654321), 0x123456u);
    for (size_t index = 0; index < start.size(); ++index)
        EXPECT_EQ(g_slideColors[index], index == 0 || index == 7 || index == 256 ? 0x654321u : start[index]);
    surface.take();
    slide.Draw(surface, 0);
    EXPECT_EQ(surface.take().substr(0, 40), "CreatePen 654321; CreateBrush 654321; Se");
    g_slideColors = start;
}

// The mapping for a slide of 100 x 50 on a device that makes `made` of the first extent.
std::string prepared(const PixelRect& rect, int isotropic, int fit, SlideSize made) {
    RecordingSurface surface;
    bool isFirst = true;
    surface.settle = [&](SlideSize asked) { return std::exchange(isFirst, false) ? made : asked; };
    OpenSlide(MadeSlide(PLAIN, 100, 50).end()).PrepareDC(surface, rect, isotropic, fit);
    return surface.take();
}

TEST(SlideMapping, StartsAtTheOriginWhateverTheCornerIs) {
    EXPECT_EQ(
        prepared({10, 10, 110, 60}, 0, 1, {110, -60}),
        "SetMapMode 8; SetWindowExt 100,50; SetViewportExt 110,-60; GetViewportExt; SetViewportOrg 0,60");
    RecordingSurface surface;
    OpenSlide(MadeSlide(PLAIN, 0, 50).end()).PrepareDC(surface, {0, 0, 9, 9}, 1, 0);
    EXPECT_EQ(surface.take(), "SetMapMode 7");
}

TEST(SlideMapping, CentresWhatKeepsItsProportions) {
    EXPECT_EQ(
        prepared({0, 0, 120, 60}, 1, 0, {101, -60}),
        "SetMapMode 7; SetWindowExt 100,50; SetViewportExt 120,-60; GetViewportExt; SetViewportOrg 9,60");
    // 60 - (60 - 25) / 2
    EXPECT_EQ(
        prepared({0, 0, 50, 60}, 1, 0, {50, -25}),
        "SetMapMode 7; SetWindowExt 100,50; SetViewportExt 50,-60; GetViewportExt; SetViewportOrg 0,43");
}

TEST(SlideMapping, WithFitFillsTheWidthOrTheHeight) {
    const std::string begin = "SetMapMode 7; SetWindowExt 100,50; ";
    EXPECT_EQ(prepared({0, 0, 120, 60}, 1, 1, {100, -60}),
              begin +
                  "SetViewportExt 120,-60; GetViewportExt; SetViewportExt 120,-72; GetViewportExt; "
                  "SetViewportOrg 0,72");
    EXPECT_EQ(prepared({0, 0, 50, 60}, 1, 1, {50, -25}),
              begin +
                  "SetViewportExt 50,-60; GetViewportExt; SetViewportExt 120,-60; GetViewportExt; "
                  "SetViewportOrg 0,60");
    // A pixel is no difference.
    EXPECT_EQ(prepared({0, 0, 120, 60}, 1, 1, {119, -59}),
              begin + "SetViewportExt 120,-60; GetViewportExt; GetViewportExt; SetViewportOrg 0,59");
}

TEST(SlideMapping, TellsPointsApartThatCannotShareAPixel) {
    // Three units a pixel across, three pixels a unit up.
    const PixelGrid grid({300, 100}, {100, -300});
    EXPECT_TRUE(grid.areApart({10, 5}, {16, 5}));
    EXPECT_FALSE(grid.areApart({10, 5}, {15, 5}));
    EXPECT_TRUE(grid.areApart({10, 5}, {10, 4}));
    EXPECT_FALSE(grid.areApart({10, 5}, {10, 5}));
    EXPECT_FALSE(grid.areApart({0, 0}, {INT32_MIN, 5}));
    for (const PixelGrid& unknowing :
         {PixelGrid(), PixelGrid({0, 0}, {10, 10}), PixelGrid({1, 1}, {INT32_MIN, 0})})
        EXPECT_FALSE(unknowing.areApart({0, 0}, {1000, 1000}));
}

TEST(SlideMapping, HasTheArithmeticOf32Bits) {
    EXPECT_EQ(fittedExtent(100, 10, {0, -10}), std::nullopt);
    EXPECT_EQ(fittedExtent(100, 10, {100, 0}), std::nullopt);
    EXPECT_EQ(fittedExtent(65536, 65536, {1, 0}), (SlideSize{65536, 0}));
    EXPECT_EQ(fittedExtent(46341, 46341, {-1, 0}), (SlideSize{46341, -2147479015}));
    EXPECT_EQ(centredOrigin(INT32_MIN, INT32_MAX, {1, 1}).x, 1073741823);
    EXPECT_EQ(centredOrigin(10, 10, {13, -13}), (SlidePoint{-1, 11}));
}

}  // namespace
