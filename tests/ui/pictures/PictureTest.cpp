// Pictures of every kind, whole, cut off and spoilt, drawn into a bitmap.
#include "src/pictures/Picture.h"

#include <gtest/gtest.h>
#include <ole2.h>
#include <wincodec.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <utility>
#include <vector>

#include "tests/support/Canvas.h"
#include "tests/support/TempFolder.h"
#include "tests/ui/pictures/HugePictures.h"

namespace {

namespace fs = std::filesystem;

constexpr COLORREF UNDER = RGB(255, 0, 255);
constexpr COLORREF BLACK = RGB(0, 0, 0);
constexpr COLORREF WHITE = RGB(255, 255, 255);
constexpr COLORREF RED = RGB(220, 30, 30);
constexpr COLORREF GREEN = RGB(30, 160, 60);
constexpr COLORREF BLUE = RGB(40, 80, 200);
constexpr COLORREF YELLOW = RGB(250, 210, 40);
constexpr COLORREF STEEL = RGB(190, 200, 210);

constexpr const wchar_t* NAMES[] = {L"contactor.bmp", L"contactor.tif", L"lamp.png",  L"switch.gif",
                                    L"panel.jpg",     L"terminal.ico",  L"motor.wmf", L"coil.emf"};

fs::path pictureFile(const wchar_t* name) { return fs::path(L"examples/pictures") / name; }

Bytes pictureBytes(const wchar_t* name) { return bytesOf<Bytes>(pictureFile(name)); }

ComPtr<IPicture> pictureOf(const Bytes& bytes) {
    return loadPicture(TempFolder().file("a picture of the tests", bytes).c_str());
}

// An area of 100 x 100 pixels of one color, and the picture on it.
class Drawn : public Canvas {
  public:
    Drawn(IPicture& picture, bool fit) : Canvas(SIDE, SIDE) {
        const RECT all = {0, 0, SIDE, SIDE};
        SetBkColor(dc(), UNDER);
        ExtTextOutW(dc(), 0, 0, ETO_OPAQUE, &all, L"", 0, nullptr);
        drawPicture(picture, dc(), {SIDE, SIDE}, fit);
    }

    // The smallest rectangle outside of which nothing was drawn.
    RECT bounds() const {
        RECT found = {SIDE, SIDE, 0, 0};
        for (LONG y = 0; y < SIDE; ++y) {
            for (LONG x = 0; x < SIDE; ++x) {
                if (at(x, y) == UNDER) continue;
                found = {std::min(found.left, x), std::min(found.top, y), std::max(found.right, x + 1),
                         std::max(found.bottom, y + 1)};
            }
        }
        return found;
    }

  private:
    static constexpr LONG SIDE = 100;
};

// The decoders and the scaling round in their own ways.
bool isNear(COLORREF a, COLORREF b) {
    const auto isClose = [](int x, int y) { return std::abs(x - y) <= 6; };
    return isClose(GetRValue(a), GetRValue(b)) && isClose(GetGValue(a), GetGValue(b)) &&
           isClose(GetBValue(a), GetBValue(b));
}

#define EXPECT_COLOR(wanted, got) \
    EXPECT_TRUE(isNear(wanted, got)) << std::hex << "wanted " << (wanted) << ", got " << (got)

// Metafiles are drawn by the platform's own conversions: an edge may be a pixel off.
void expectBounds(const RECT& wanted, const RECT& got) {
    EXPECT_NEAR(wanted.left, got.left, 1);
    EXPECT_NEAR(wanted.top, got.top, 1);
    EXPECT_NEAR(wanted.right, got.right, 1);
    EXPECT_NEAR(wanted.bottom, got.bottom, 1);
}

class Pictures : public testing::Test {
  protected:
    static void SetUpTestSuite() { OleInitialize(nullptr); }
    static void TearDownTestSuite() { OleUninitialize(); }

    static ComPtr<IPicture> load(const wchar_t* name) { return loadPicture(pictureFile(name).c_str()); }
};

TEST_F(Pictures, OfEveryKindAreDrawn) {
    struct Sample {
        const wchar_t* name;
        RECT bounds;
        COLORREF middle;
    };
    const Sample samples[] = {
        {L"contactor.bmp", {18, 10, 82, 90}, WHITE}, {L"contactor.tif", {18, 10, 82, 90}, WHITE},
        {L"lamp.png", {36, 36, 64, 64}, RED},        {L"panel.jpg", {0, 12, 100, 88}, STEEL},
        {L"terminal.ico", {35, 35, 65, 65}, GREEN},  {L"motor.wmf", {0, 12, 100, 88}, BLUE},
        {L"coil.emf", {0, 12, 100, 88}, GREEN},      {L"switch.gif", {26, 34, 74, 66}, WHITE},
    };
    for (const Sample& sample : samples) {
        SCOPED_TRACE(fs::path(sample.name).string());
        const ComPtr<IPicture> picture = load(sample.name);
        ASSERT_TRUE(picture);
        const Drawn drawn(*picture, false);
        expectBounds(sample.bounds, drawn.bounds());
        EXPECT_COLOR(sample.middle, drawn.at(50, 50));
    }
}

TEST_F(Pictures, FittedOnesFillTheArea) {
    const ComPtr<IPicture> picture = load(L"contactor.bmp");
    const Drawn drawn(*picture, true);
    expectBounds({0, 0, 100, 100}, drawn.bounds());
    EXPECT_COLOR(STEEL, drawn.at(0, 0));
    EXPECT_COLOR(WHITE, drawn.at(50, 50));
    EXPECT_COLOR(YELLOW, drawn.at(15, 15));
}

TEST_F(Pictures, ShowWhatLiesUnderThemWhereTheyAreTransparent) {
    for (const wchar_t* name : {L"lamp.png", L"terminal.ico"}) {
        SCOPED_TRACE(fs::path(name).string());
        const ComPtr<IPicture> picture = load(name);
        const Drawn drawn(*picture, true);
        EXPECT_EQ(UNDER, drawn.at(2, 2));
        EXPECT_NE(UNDER, drawn.at(50, 50));
    }
}

// Between two fields of color a scaled bitmap has colors of both.
TEST_F(Pictures, AreScaledSmoothly) {
    const ComPtr<IPicture> picture = load(L"contactor.bmp");
    const Drawn drawn(*picture, true);
    int between = 0;
    for (int y = 0; y < 100; ++y) {
        const COLORREF color = drawn.at(50, y);
        if (!isNear(color, STEEL) && !isNear(color, WHITE) && !isNear(color, RGB(120, 120, 120)) &&
            !isNear(color, YELLOW))
            ++between;
    }
    EXPECT_GT(between, 0);
}

TEST_F(Pictures, OfTheImagingComponentAreTheSame) {
    const Bytes bytes = pictureBytes(L"lamp.png");
    ComPtr<IStream> stream;
    CreateStreamOnHGlobal(nullptr, TRUE, stream.out());
    stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    const ComPtr<IPicture> picture = decodeByImagingComponent(*stream);
    ASSERT_TRUE(picture);
    const Drawn drawn(*picture, false);
    expectBounds({34, 34, 66, 66}, drawn.bounds());
    EXPECT_COLOR(RED, drawn.at(50, 50));
    EXPECT_COLOR(BLACK, drawn.at(34, 34));
    // Half of the yellow, on black.
    EXPECT_COLOR(RGB(125, 105, 20), drawn.at(50, 38));
}

TEST_F(Pictures, ThatNobodyCanReadAreNone) {
    EXPECT_FALSE(loadPicture(L""));
    EXPECT_FALSE(loadPicture(L"examples/pictures"));
    EXPECT_FALSE(loadPicture(L"examples/pictures/nobody.png"));
    EXPECT_FALSE(pictureOf({}));
    EXPECT_FALSE(pictureOf(Bytes(100000, 'x')));
    // Metafiles without the header that tells their size.
    const Bytes metafile = pictureBytes(L"motor.wmf");
    EXPECT_FALSE(pictureOf(Bytes(metafile.begin() + 22, metafile.end())));
}

TEST_F(Pictures, ThatSomebodyHasOpenAreNone) {
    const TempFolder folder;
    const std::wstring file = folder.file("lamp.png", pictureBytes(L"lamp.png"));
    EXPECT_TRUE(loadPicture(file.c_str()));
    const HANDLE open = CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    EXPECT_FALSE(loadPicture(file.c_str()));
    CloseHandle(open);
}

void drawIfAny(const Bytes& bytes) {
    const ComPtr<IPicture> picture = pictureOf(bytes);
    if (!picture) return;
    const Drawn asItIs(*picture, false);
    const Drawn fitted(*picture, true);
}

TEST_F(Pictures, ThatAreCutOffDoNoHarm) {
    for (const wchar_t* name : NAMES) {
        const Bytes whole = pictureBytes(name);
        for (size_t eighth = 0; eighth < 8; ++eighth)
            drawIfAny(
                Bytes(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(whole.size() * eighth / 8)));
    }
}

TEST_F(Pictures, ThatAreSpoiltDoNoHarm) {
    std::mt19937 random(1);
    for (const wchar_t* name : NAMES) {
        SCOPED_TRACE(fs::path(name).string());
        const Bytes whole = pictureBytes(name);
        // In the header, where sizes and places stand, and anywhere.
        for (const size_t reach : {std::min<size_t>(whole.size(), 120), whole.size()}) {
            for (int time = 0; time < 30; ++time) {
                Bytes spoilt = whole;
                for (int change = 0; change < 4; ++change)
                    spoilt[random() % reach] = static_cast<char>(random());
                drawIfAny(spoilt);
            }
        }
    }
}

void expectBlackAboveWhite(const Bytes& bytes, const RECT& bounds) {
    const ComPtr<IPicture> picture = pictureOf(bytes);
    ASSERT_TRUE(picture);
    const Drawn drawn(*picture, false);
    expectBounds(bounds, drawn.bounds());
    EXPECT_COLOR(BLACK, drawn.at(50, 30));
    EXPECT_COLOR(WHITE, drawn.at(50, 70));
}

TEST_F(Pictures, ThatAreHugeAreDrawn) {
    const RECT bounds = {0, 17, 100, 83};
    const std::pair<const char*, Bytes> files[] = {
        {"BMP", hugeImage(GUID_ContainerFormatBmp)},
        {"PNG", hugeImage(GUID_ContainerFormatPng)},
        {"JPEG", hugeImage(GUID_ContainerFormatJpeg)},
        {"GIF", hugeImage(GUID_ContainerFormatGif)},
        {"TIFF", hugeImage(GUID_ContainerFormatTiff)},
        {"WMF", hugeMetafile()},
        {"EMF", hugeEnhMetafile()},
    };
    for (const auto& [kind, bytes] : files) {
        SCOPED_TRACE(kind);
        expectBlackAboveWhite(bytes, bounds);
    }
    expectBlackAboveWhite(hugeIcon(), {0, 0, 100, 100});
}

// Text stands left of the middle, a region right of it, and below a gradient from black to white.
TEST_F(Pictures, OfMetafilesMayHoldTextsRegionsAndGradients) {
    const auto drawAll = [](HDC dc) {
        const HRGN region = CreateEllipticRgn(60, 10, 90, 40);
        FillRgn(dc, region, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
        DeleteObject(region);
        TextOutW(dc, 5, 5, L"MMMMMM", 6);
    };
    const auto darkPixels = [](const Drawn& drawn, int left, int right) {
        int count = 0;
        for (int y = 0; y < 50; ++y)
            for (int x = left; x < right; ++x) count += drawn.at(x, y) == BLACK;
        return count;
    };
    const auto drawGradientToo = [&](HDC dc) {
        drawAll(dc);
        TRIVERTEX corners[] = {{0, 50, 0, 0, 0, 0}, {100, 100, 0xFF00, 0xFF00, 0xFF00, 0}};
        GRADIENT_RECT rectangle = {0, 1};
        GdiGradientFill(dc, corners, 2, &rectangle, 1, GRADIENT_FILL_RECT_H);
    };
    for (const bool enhanced : {false, true}) {
        SCOPED_TRACE(enhanced);
        const Bytes bytes =
            enhanced ? enhMetafile({100, 100}, drawGradientToo) : metafile({100, 100}, drawAll);
        const ComPtr<IPicture> picture = pictureOf(bytes);
        ASSERT_TRUE(picture);
        const Drawn drawn(*picture, true);
        EXPECT_GT(darkPixels(drawn, 0, 50), 10);
        EXPECT_GT(darkPixels(drawn, 60, 90), 400);
        if (!enhanced) continue;
        EXPECT_LT(GetRValue(drawn.at(20, 75)), 80);
        EXPECT_GT(GetRValue(drawn.at(80, 75)), 170);
    }
}

}  // namespace
