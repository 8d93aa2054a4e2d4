#include "host/database/DxfReader.h"

#include <gtest/gtest.h>

#include <cmath>

#include "host/database/DrawingFile.h"

namespace {

using namespace cad;

// Groups written as "code value|code value", each of which becomes two lines.
std::string dxf(std::string groups) {
    std::string text;
    for (size_t at = 0; at < groups.size();) {
        const size_t end = std::min(groups.find('|', at), groups.size());
        const std::string group = groups.substr(at, end - at);
        const size_t blank = group.find(' ');
        text += "  " + group.substr(0, blank) + "\r\n" +
                (blank == std::string::npos ? "" : group.substr(blank + 1)) + "\r\n";
        at = end + 1;
    }
    return text;
}

const std::string HEAD =
    "0 SECTION|2 TABLES|0 TABLE|2 LAYER|0 LAYER|2 Wires|70 0|62 5|0 LAYER|2 Hidden|62 -3|0 ENDTAB|0 ENDSEC|";

DxfDrawing entities(const std::string& groups) {
    return readDxf(dxf(HEAD + "0 SECTION|2 ENTITIES|" + groups + "0 ENDSEC|0 EOF"));
}

template <class Kind>
const Kind& first(const DxfDrawing& read) {
    return std::get<Kind>(read.drawing.modelSpace().entities().at(0).geometry);
}

TEST(DxfReader, ReadsLayersAndColors) {
    const DxfDrawing read =
        entities("0 LINE|8 wires|10 1|20 2|11 3|21 4|31 5|0 POINT|10 1|0 LINE|8 Hidden|62 1|");
    const Drawing& drawing = read.drawing;
    EXPECT_EQ(drawing.rgbOf(drawing.modelSpace().entities()[0]), rgbOf(5));
    EXPECT_EQ(drawing.rgbOf(drawing.modelSpace().entities()[1]), rgbOf(1));
    EXPECT_FALSE(drawing.layer(drawing.modelSpace().entities()[1].layer).visible);
    EXPECT_EQ(first<Line>(read).end.z, 5.0);
    EXPECT_EQ(entities("0 LINE|67 1|").drawing.modelSpace().entities().size(), 0u);
    EXPECT_EQ(read.skipped, (std::map<std::string, int>{{"POINT", 1}}));
}

TEST(DxfReader, TurnsFlatThingsIntoTheWorld) {
    // A normal along -Z mirrors X.
    const DxfDrawing read = entities("0 CIRCLE|10 3|20 1|40 2|230 -1|");
    EXPECT_NEAR(first<Circle>(read).center.x, -3.0, 1e-12);
    EXPECT_NEAR(first<Circle>(read).center.y, 1.0, 1e-12);
}

TEST(DxfReader, ReadsPolylinesOfBothKinds) {
    const DxfDrawing light = entities("0 LWPOLYLINE|70 1|38 7|10 0|20 0|42 0.5|10 4|20 0|10 4|20 3|");
    EXPECT_TRUE(first<Polyline>(light).closed);
    EXPECT_EQ(first<Polyline>(light).vertices.size(), 3u);
    EXPECT_EQ(first<Polyline>(light).vertices[0].bulge, 0.5);
    EXPECT_EQ(first<Polyline>(light).vertices[2].point.z, 7.0);

    const DxfDrawing faces = entities(
        "0 POLYLINE|70 64|0 VERTEX|70 192|10 0|0 VERTEX|70 192|10 1|0 VERTEX|70 192|20 1|"
        "0 VERTEX|70 128|71 1|72 -2|73 3|0 SEQEND|0 LINE|11 1|");
    EXPECT_EQ(first<FaceMesh>(faces).faces, (std::vector<std::array<uint32_t, 4>>{{0, 1, 2, 2}}));
    EXPECT_EQ(faces.drawing.modelSpace().entities().size(), 2u);

    const DxfDrawing grid = entities(
        "0 POLYLINE|70 16|71 2|72 2|0 VERTEX|0 VERTEX|10 1|0 VERTEX|20 1|0 VERTEX|10 1|20 1|0 SEQEND|");
    EXPECT_EQ(first<FaceMesh>(grid).faces.size(), 1u);
}

TEST(DxfReader, ReadsTextsWithTheirCodes) {
    EXPECT_EQ(first<Text>(entities("0 TEXT|40 2|50 90|1 90%%d \\U+00E4|")).contents, u"90\u00B0 \u00E4");
    const DxfDrawing text = entities("0 MTEXT|40 2|71 7|3 {\\fArial|1 |");
    EXPECT_EQ(first<MText>(text).height, 2.0);
    EXPECT_EQ(first<MText>(entities("0 MTEXT|40 1|1 {\\fArial;one\\Ptwo}\\~three|")).contents,
              u"one\\Ptwo three");
    const DxfDrawing table = entities("0 X_TABLE|91 1|92 2|141 3|142 4|142 5|1 a|1 b|");
    EXPECT_EQ(first<std::unique_ptr<Table>>(table)->cells, (std::vector<std::u16string>{u"a", u"b"}));
}

TEST(DxfReader, ReadsBlocksAndSolids) {
    const DxfDrawing read = readDxf(
        dxf("0 SECTION|2 BLOCKS|0 BLOCK|2 Relay|10 4|0 SOLID|10 0|11 1|20 0|12 0|22 1|13 1|23 1|0 ENDBLK|"
            "0 BLOCK|2 *Model_Space|0 ENDBLK|0 ENDSEC|0 EOF"));
    const Block* block = read.drawing.block(u"relay");
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(block->origin.x, 4.0);
    // Round the quadrilateral, not crosswise.
    EXPECT_EQ(std::get<Solid>(block->entities()[0].geometry).corners[2].x, 1.0);
}

// Reads blocks of these groups and entities of those.
DxfDrawing withBlocks(const std::string& blocks, const std::string& groups) {
    return readDxf(dxf(HEAD + "0 SECTION|2 BLOCKS|" + blocks + "0 ENDSEC|0 SECTION|2 ENTITIES|" + groups +
                       "0 ENDSEC|0 EOF"));
}

TEST(DxfReader, CopiesInsertedBlocksToTheirPlaces) {
    const DxfDrawing read = withBlocks(
        "0 BLOCK|2 Pair|0 INSERT|2 Wire|0 INSERT|2 Wire|20 7|0 ENDBLK|"
        "0 BLOCK|2 Wire|10 1|0 LINE|10 1|11 2|0 TEXT|10 1|40 3|1 W|0 ATTDEF|1 tag|0 ENDBLK|",
        "0 INSERT|8 wires|2 Pair|10 10|20 20|41 2|42 3|50 90|0 INSERT|2 wire|70 3|44 5|41 2|0 SEQEND|"
        "0 ATTRIB|10 5|40 1|1 K7|0 ATTRIB|70 1|1 hidden|");
    const auto& entities = read.drawing.modelSpace().entities();
    ASSERT_EQ(entities.size(), 11u);
    EXPECT_TRUE(read.skipped.empty());
    // Two wide and turned upright; the pair's other wire is 21 to the left of it.
    const Line& wire = std::get<Line>(entities[1].geometry);
    EXPECT_NEAR(wire.start.x, 10.0, 1e-9);
    EXPECT_NEAR(wire.end.y, 22.0, 1e-9);
    EXPECT_NEAR(std::get<Line>(entities[3].geometry).end.x, -11.0, 1e-9);
    const Text& text = std::get<Text>(entities[2].geometry);
    EXPECT_NEAR(text.height, 9.0, 1e-9);
    EXPECT_NEAR(text.rotation, 1.5707963, 1e-6);
    // What lies on layer 0 of the block takes the insert's.
    EXPECT_EQ(read.drawing.layer(entities[1].layer).name, u"Wires");
    EXPECT_NEAR(std::get<Line>(entities[9].geometry).end.x, 12.0, 1e-9);
    EXPECT_EQ(std::get<Text>(entities[0].geometry).contents, u"K7");
}

TEST(DxfReader, LeavesOutInsertsThatHaveNoEnd) {
    std::string blocks =
        "0 BLOCK|2 Own|0 LINE|11 1|0 INSERT|2 Own|0 ENDBLK|0 BLOCK|2 B0|0 LINE|11 1|0 ENDBLK|";
    for (int level = 1; level <= 30; ++level) {
        const std::string former = "0 INSERT|2 B" + std::to_string(level - 1) + "|";
        blocks += "0 BLOCK|2 B" + std::to_string(level) + "|" + former + former + "0 ENDBLK|";
    }
    const DxfDrawing read = withBlocks(blocks, "0 INSERT|2 Own|0 INSERT|2 Nothing|0 INSERT|2 B30|");
    EXPECT_GT(read.skipped.at("INSERT"), 2);
    size_t count = 0;
    for (const auto& block : read.drawing.blocks()) count += block->entities().size();
    EXPECT_LT(count, 1'100'000u);
}

TEST(DxfReader, SaysWhatIsWrong) {
    const auto faultOf = [](const std::string& text) -> std::string {
        try {
            readDxf(text);
        } catch (const FileFault& fault) {
            return fault.what();
        }
        return "";
    };
    EXPECT_EQ(faultOf(dxf("0 SECTION|2 ENTITIES|0 LINE|10 far|0 EOF")), "line 8: \"far\" is no number");
    EXPECT_EQ(faultOf(dxf("0 SECTION|2 ENTITIES|0 LINE|10 1")), "line 8: the file ends before its EOF");
    EXPECT_EQ(faultOf("wexdrawing 1\n"), "line 1: a group code is expected, not \"wexdrawing 1\"");
    EXPECT_EQ(
        faultOf(dxf("0 SECTION|2 ENTITIES|0 POLYLINE|70 64|0 VERTEX|70 128|71 9|72 1|73 1|0 SEQEND|0 EOF")),
        "line 10: a face has a corner that doesn't exist");
}

}  // namespace
