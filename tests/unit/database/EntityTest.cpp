#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "host/database/Drawing.h"

namespace {

using namespace cad;

HostExtents extentsOf(Geometry geometry) {
    Entity entity;
    entity.geometry = std::move(geometry);
    HostExtents extents;
    cad::extentsOf(entity, extents);
    return extents;
}

TEST(Entity, ReachesAsFarAsItIsDrawn) {
    // A half circle above the X axis, and one that stands on edge.
    const HostExtents half = extentsOf(Arc{{1, 1, 0}, 2.0, 0.0, std::numbers::pi});
    EXPECT_NEAR(half.min.x, -1.0, 1e-6);
    EXPECT_NEAR(half.min.y, 1.0, 1e-6);
    EXPECT_NEAR(half.max.y, 3.0, 2e-3);
    const HostExtents edge = extentsOf(Circle{{0, 0, 0}, 5.0, {1, 0, 0}});
    EXPECT_NEAR(edge.max.x, 0.0, 1e-6);
    EXPECT_NEAR(edge.max.z, 5.0, 1e-9);
    // A bulge of 1 is a half circle to the right of the way, seen from its begin.
    const HostExtents bulge = extentsOf(Polyline{.vertices = {{{0, 0, 0}, 1.0}, {{2, 0, 0}}}});
    EXPECT_NEAR(bulge.min.y, -1.0, 2e-3);
    EXPECT_NEAR(bulge.max.y, 0.0, 1e-9);
    EXPECT_TRUE(extentsOf(MText{{.contents = u""}}).isEmpty());
}

TEST(Entity, BreaksTextsIntoLines) {
    using Lines = std::vector<std::u16string>;
    EXPECT_EQ(linesOf(u"one\\Ptwo\nthree", 0), (Lines{u"one", u"two", u"three"}));
    EXPECT_EQ(linesOf(u"some words that wrap", 10), (Lines{u"some words", u"that wrap"}));
    EXPECT_EQ(linesOf(u"unbreakable", 3), (Lines{u"unbreakable"}));
}

TEST(Drawing, TellsNamesApartWithoutCase) {
    Drawing drawing;
    Block& block = drawing.addBlock(u"Panel");
    EXPECT_EQ(drawing.block(u"pANEL"), &block);
    EXPECT_EQ(drawing.block(block.id()), &block);
    EXPECT_THROW(drawing.addBlock(u"PANEL"), std::invalid_argument);
    EXPECT_THROW(drawing.addBlock(u""), std::invalid_argument);
    EXPECT_EQ(drawing.layerNamed(u"wires"), drawing.layerNamed(u"WIRES"));
    // Ids of one drawing mean nothing in another.
    EXPECT_EQ(Drawing().block(block.id()), nullptr);
}

TEST(Drawing, KnowsItsExtentsAfterEachChange) {
    Drawing drawing;
    Block& space = drawing.modelSpace();
    EXPECT_TRUE(space.extents().isEmpty());
    space.add({Line{{0, 0, 0}, {4, 2, 0}}});
    EXPECT_EQ(space.extents().max.x, 4.0);
    space.add({Line{{0, 0, 0}, {9, 2, 0}}});
    EXPECT_EQ(space.extents().max.x, 9.0);
    space.remove(1);
    EXPECT_EQ(space.extents().max.x, 4.0);
}

}  // namespace
