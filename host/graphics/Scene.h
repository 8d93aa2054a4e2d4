// What a view draws, made once from a block and kept: pieces of lines, triangles and texts, gathered in
// chunks of what lies together, each with the box around it, so that a chunk that isn't seen costs nothing.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "host/database/Drawing.h"
#include "host/graphics/GlyphSource.h"

namespace graphics {

// Relative to the scene's origin, so that 32 bits are enough for drawings far from the world's.
struct ScenePoint {
    float x, y, z;
};

struct LinePiece {
    ScenePoint a, b;
};

struct Triangle {
    ScenePoint a, b, c;
};

struct SceneBox {
    ScenePoint centre;
    // Half of its size.
    ScenePoint reach;
};

// Pieces from `first` on, all of one kind.
struct Chunk {
    uint32_t first;
    uint32_t count;
    SceneBox box;
};

struct LineLook {
    float width = 1.0f;
    cad::LinePattern pattern = cad::LinePattern::continuous;
    // The edge of a face: hidden behind faces, and left out where faces are shaded without edges.
    bool isEdge = false;

    auto operator<=>(const LineLook&) const = default;
};

// Lines of one look. `colors` has one for each piece.
struct LineSet {
    LineLook look;
    std::vector<LinePiece> pieces;
    std::vector<uint32_t> colors;
    std::vector<Chunk> chunks;
};

struct TriangleSet {
    std::vector<Triangle> pieces;
    std::vector<uint32_t> colors;
    std::vector<Chunk> chunks;
};

// A line of text: `right` and `up` are as long as the letters are high.
struct TextRun {
    ScenePoint origin;
    ScenePoint right, up;
    uint32_t color;
    std::u16string letters;
    SceneBox box;
};

struct Scene {
    HostPoint3d origin;
    std::vector<LineSet> lines;
    // Filled in every style, and filled only where faces are.
    TriangleSet solids;
    TriangleSet faces;
    std::vector<TextRun> texts;

    size_t lineCount() const;
};

// Layers that are off leave their entities out. `glyphs` tells how wide texts are.
Scene sceneOf(const cad::Drawing& drawing, const cad::Block& block, GlyphSource& glyphs);

}  // namespace graphics
