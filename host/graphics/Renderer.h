// Draws scenes as a camera sees them.
#pragma once

#include <span>

#include "host/graphics/Camera.h"
#include "host/graphics/GlyphSource.h"
#include "host/graphics/Raster.h"
#include "host/graphics/Scene.h"

namespace graphics {

enum class Style {
    // Lines only; what is filled lies in the order in which it was made.
    wireframe,
    // Faces hide what is behind them.
    hidden,
    // Faces lit from the camera's upper left, without and with their edges.
    shaded,
    shadedWithEdges,
};

struct Look {
    Style style = Style::wireframe;
    uint32_t background = 0x212830;
    // Every how many pieces one is drawn: more than 1 while a person turns what is too much to draw each
    // time.
    uint32_t stride = 1;
    // Pixels to one at 96 dots per inch: line widths grow with it.
    float scale = 1.0f;
};

// Clears `raster`, whose area shows the camera's view, and draws.
void render(std::span<const Scene* const> scenes, const Camera& camera, const Look& look, GlyphSource& glyphs,
            Raster& raster);

}  // namespace graphics
