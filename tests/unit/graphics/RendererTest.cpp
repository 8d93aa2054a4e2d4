#include "host/graphics/Renderer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

using namespace graphics;

constexpr int SIZE = 100;
constexpr uint32_t BACKGROUND = 0x102030;

// Each letter is a filled square of a capital's height.
class SquareGlyphs final : public GlyphSource {
  public:
    const Glyph& glyph(char16_t) override { return m_glyph; }

  private:
    Glyph m_glyph{{{{0, 0}, {1, 0}, {1, 1}, {0, 1}}}, 1.0f};
};

// Draws the model space, which covers 0 to 10 in both directions, on a square of 100 pixels.
class Picture {
  public:
    cad::Drawing drawing;

    void add(cad::Geometry geometry, cad::ColorIndex color = 1) {
        cad::Entity entity;
        entity.geometry = std::move(geometry);
        entity.color = color;
        drawing.modelSpace().add(std::move(entity));
    }
    Camera camera;

    void draw(Style style = Style::wireframe, uint32_t stride = 1) {
        SquareGlyphs glyphs;
        m_pixels.assign(SIZE * SIZE, 0);
        Raster raster;
        raster.attach(m_pixels.data(), SIZE, SIZE);
        const Scene scene = sceneOf(drawing, drawing.modelSpace(), glyphs);
        const Scene* scenes[] = {&scene};
        render(scenes, camera, {.style = style, .background = BACKGROUND, .stride = stride}, glyphs, raster);
    }
    // Of the point (x, y) of the drawing.
    uint32_t at(double x, double y) const {
        return m_pixels[static_cast<size_t>(SIZE - 1 - static_cast<int>(y * 10)) * SIZE +
                        static_cast<size_t>(x * 10)];
    }
    int inked() const {
        int count = 0;
        for (const uint32_t pixel : m_pixels) count += pixel != BACKGROUND;
        return count;
    }
    Picture() { camera.setView({5, 5, 50}, {5, 5, 0}, {0, 1, 0}, 10, 10); }

  private:
    std::vector<uint32_t> m_pixels;
};

TEST(Renderer, DrawsLinesWhereTheyAre) {
    Picture picture;
    picture.add(cad::Line{{1.05, 2.05, 0}, {9.05, 2.05, 0}}, 1);
    picture.add(cad::Line{{5.05, 0.5, 0}, {5.05, 9.5, 0}}, 3);
    picture.draw();
    EXPECT_EQ(picture.at(2, 2), 0xFF0000u);
    EXPECT_EQ(picture.at(5, 8), 0x00FF00u);
    EXPECT_EQ(picture.at(2, 3), BACKGROUND);
    EXPECT_EQ(picture.at(0, 2), BACKGROUND);
}

TEST(Renderer, ClipsWhatLiesOutside) {
    Picture picture;
    picture.add(cad::Line{{-1e7, 5.05, 0}, {1e7, 5.05, 0}});
    picture.add(cad::Line{{20, 20, 0}, {30, 30, 0}});
    picture.draw();
    EXPECT_EQ(picture.at(0, 5), 0xFF0000u);
    EXPECT_EQ(picture.at(9.9, 5), 0xFF0000u);
    EXPECT_EQ(picture.inked(), SIZE);
}

TEST(Renderer, FillsSolidsInAnyStyleAndFacesWhereTheyAreSeen) {
    Picture picture;
    picture.add(cad::Solid{{HostPoint3d{1, 1, 0}, {3, 1, 0}, {3, 3, 0}, {1, 3, 0}}}, 2);
    // A red face before a green one.
    picture.add(cad::FaceMesh{{{5, 5, 5}, {9, 5, 5}, {9, 9, 5}, {5, 9, 5}}, {{0, 1, 2, 3}}}, 1);
    picture.add(cad::FaceMesh{{{4, 4, 1}, {8, 4, 1}, {8, 8, 1}, {4, 8, 1}}, {{0, 1, 2, 3}}}, 3);
    picture.draw();
    EXPECT_EQ(picture.at(2, 2), 0xFFFF00u);
    EXPECT_EQ(picture.at(7, 7), BACKGROUND);
    picture.draw(Style::shaded);
    EXPECT_EQ(picture.at(6.5, 6.2) & 0x00FFFF, 0u);
    EXPECT_GT(picture.at(6.5, 6.2), 0x400000u);
    EXPECT_GT(picture.at(4.5, 4.5) & 0x00FF00, 0x004000u);
    // The hidden edge of the green face isn't seen within the red one.
    picture.draw(Style::hidden);
    EXPECT_EQ(picture.at(6.5, 7.95), BACKGROUND);
    EXPECT_NE(picture.at(6.5, 3.95), BACKGROUND);
}

TEST(Renderer, FillsLettersAndDrawsSmallOnesAsALine) {
    Picture picture;
    picture.add(cad::Text{{.position = {2, 2, 0}, .height = 2.0, .contents = u"AB"}});
    picture.draw();
    EXPECT_EQ(picture.at(3, 3), 0xFF0000u);
    EXPECT_EQ(picture.at(5.5, 3.5), 0xFF0000u);
    EXPECT_EQ(picture.at(6.5, 3), BACKGROUND);
    EXPECT_EQ(picture.inked(), 40 * 20);
    picture.camera.zoom(0.1);
    picture.draw();
    EXPECT_GT(picture.inked(), 0);
    EXPECT_LT(picture.inked(), 15);
}

TEST(Renderer, DrawsWidthsAndPatterns) {
    Picture picture;
    cad::Entity wide{cad::Line{{1, 5, 0}, {9, 5, 0}}, 0, 1};
    wide.lineWidth = 6.0f;
    picture.drawing.modelSpace().add(std::move(wide));
    cad::Entity dashed{cad::Line{{1, 2.05, 0}, {9, 2.05, 0}}, 0, 1};
    dashed.pattern = cad::LinePattern::dashed;
    picture.drawing.modelSpace().add(std::move(dashed));
    picture.draw();
    EXPECT_EQ(picture.at(5, 5.2), 0xFF0000u);
    EXPECT_EQ(picture.at(5, 4.75), 0xFF0000u);
    EXPECT_EQ(picture.at(5, 5.5), BACKGROUND);
    EXPECT_EQ(picture.at(1.5, 2), 0xFF0000u);
    EXPECT_EQ(picture.at(2.25, 2), BACKGROUND);
}

TEST(Renderer, LeavesOutLayersThatAreOff) {
    Picture picture;
    picture.add(cad::Line{{0, 5, 0}, {10, 5, 0}});
    picture.drawing.layer(0).visible = false;
    picture.draw();
    EXPECT_EQ(picture.inked(), 0);
}

// Whatever it is given, nothing is written outside (the sanitizers watch) and nothing takes long.
TEST(Renderer, BearsAnyNumbers) {
    std::mt19937 random(7);
    const double strange[] = {
        0.0, -0.0, 1e-300, 1e20, -1e300, 5.0, std::numeric_limits<double>::infinity(), std::nan("")};
    const auto number = [&] {
        return random() % 3 ? std::uniform_real_distribution<double>(-20, 20)(random)
                            : strange[random() % std::size(strange)];
    };
    const auto point = [&] { return HostPoint3d{number(), number(), number()}; };
    for (int round = 0; round < 300; ++round) {
        Picture picture;
        for (int at = 0; at < 20; ++at) {
            cad::Entity line{cad::Line{point(), point()}};
            line.lineWidth = static_cast<float>(random() % 5);
            line.pattern = static_cast<cad::LinePattern>(random() % 4);
            picture.drawing.modelSpace().add(std::move(line));
            picture.add(cad::Solid{{point(), point(), point(), point()}});
            picture.add(cad::FaceMesh{{point(), point(), point()}, {{0, 1, 2, 2}}});
            picture.add(cad::Circle{point(), number(), point().asVector()});
            picture.add(cad::Text{{.position = point(), .height = std::fabs(number()), .contents = u"abc"}});
        }
        picture.camera.orbit(number(), number());
        picture.draw(static_cast<Style>(random() % 4), 1 + random() % 3);
    }
}

TEST(Renderer, DrawsInPartWhatTakesLong) {
    Picture picture;
    for (int at = 0; at < 1000; ++at) picture.add(cad::Line{{at * 0.01, 0, 0}, {at * 0.01, 10, 0}});
    picture.draw(Style::wireframe, 20);
    EXPECT_GT(picture.inked(), SIZE * SIZE / 4);
    EXPECT_LT(picture.inked(), SIZE * SIZE);
}

}  // namespace
