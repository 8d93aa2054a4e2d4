// Drawing files and files in the exchange format: whatever is read is written and read back, its extents are
// known, and it is drawn.
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <vector>

#include "host/database/DrawingFile.h"
#include "host/database/DxfReader.h"
#include "host/graphics/Renderer.h"

namespace {

class NoGlyphs final : public graphics::GlyphSource {
  public:
    const graphics::Glyph& glyph(char16_t) override { return m_glyph; }

  private:
    graphics::Glyph m_glyph{{}, 1.0f};
};

void use(const cad::Drawing& drawing) {
    const std::string text = cad::drawingText(drawing);
    if (cad::drawingText(cad::drawingOf(text)) != text) std::abort();
    NoGlyphs glyphs;
    std::vector<uint32_t> pixels(32 * 32);
    graphics::Raster raster;
    raster.attach(pixels.data(), 32, 32);
    graphics::Camera camera;
    for (const auto& block : drawing.blocks()) {
        const graphics::Scene scene = graphics::sceneOf(drawing, *block, glyphs);
        const graphics::Scene* scenes[] = {&scene};
        graphics::render(scenes, camera, {.style = graphics::Style::shadedWithEdges}, glyphs, raster);
    }
}

}  // namespace

// The first byte says which of the two kinds follows.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    std::optional<cad::Drawing> drawing;
    try {
        drawing = *data & 1 ? cad::drawingOf(text) : std::move(cad::readDxf(text).drawing);
    } catch (const cad::FileFault&) {
        return 0;
    }
    use(*drawing);
    return 0;
}
