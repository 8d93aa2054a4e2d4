#include "host/database/DrawingFile.h"

#include <gtest/gtest.h>

namespace {

using namespace cad;

Drawing sample() {
    Drawing drawing;
    drawing.layer(drawing.layerNamed(u"Wires")).color = 3;
    drawing.addTableStyle({.name = u"test", .textHeight = 2, .rowHeight = 4, .columnWidth = 30});
    drawing.variables()[u"NOTE"] = std::u16string(u"a \"quoted\" \\ text\nin two lines, \u00E4\u20AC");
    drawing.viewport().target = {1, 2, 3};
    Block& block = drawing.addBlock(u"Relay 1");
    block.origin = {0.1, 1e-9, -3e17};
    Entity wire{Polyline{.vertices = {{{0, 0, 0}, 0.5}, {{1, 0, 0}}, {{1, 1, 0}, -1}}, .closed = true}, 1, 5};
    wire.pattern = LinePattern::dashDot;
    wire.lineWidth = 2.5f;
    block.add(std::move(wire));
    auto table = std::make_unique<Table>();
    table->style = drawing.tableStyle(u"TEST")->id;
    table->rowHeights = {1, 2};
    table->columnWidths = {3};
    table->cells = {u"first", u""};
    Block& space = drawing.modelSpace();
    space.add({std::move(table)});
    space.add({Line{{0, 0, 0}, {1, 1, 1}}});
    space.add({Circle{{0, 0, 0}, 2, {0, 1, 0}}});
    space.add({Arc{{0, 0, 0}, 2, 0.1, 3, {0, 0, 1}}});
    space.add({Text{{.contents = u"K1"}}});
    space.add({MText{{.contents = u"one\\Ptwo"}, 12}});
    space.add({Solid{{HostPoint3d{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}}});
    space.add({FaceMesh{{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {{0, 1, 2, 2}}}});
    return drawing;
}

TEST(DrawingFile, ReadsBackAllThatItWrote) {
    const std::string text = drawingText(sample());
    const Drawing drawing = drawingOf(text);
    EXPECT_EQ(drawingText(drawing), text);
    EXPECT_EQ(std::get<std::u16string>(drawing.variables().at(u"NOTE")),
              u"a \"quoted\" \\ text\nin two lines, \u00E4\u20AC");
    EXPECT_EQ(drawing.modelSpace().entities().size(), 8u);
    EXPECT_EQ(drawing.block(u"relay 1")->origin.z, -3e17);
    EXPECT_EQ(drawing.rgbOf(drawing.block(u"Relay 1")->entities()[0]), 0x0000FFu);
    EXPECT_EQ(
        drawing
            .tableStyle(std::get<std::unique_ptr<Table>>(drawing.modelSpace().entities()[0].geometry)->style)
            ->name,
        u"test");
}

TEST(DrawingFile, RefusesEveryPartOfAFile) {
    const std::string text = drawingText(sample());
    for (size_t length = 0; length + 1 < text.size(); length += 7) {
        EXPECT_THROW(drawingOf(text.substr(0, length)), FileFault) << length;
    }
}

TEST(DrawingFile, SaysWhichLineIsWrong) {
    const auto faultOf = [](const std::string& lines) -> std::string {
        try {
            drawingOf("wexdrawing 1\nblock \"*Model_Space\" 0 0 0\n" + lines + "\nend-of-drawing\n");
        } catch (const FileFault& fault) {
            return fault.what();
        }
        return "";
    };
    EXPECT_EQ(faultOf("LINE 0 256 continuous 1 0 0 0 1 1 1"), "");
    EXPECT_EQ(faultOf("LINE 0 256 continuous 1 0 0 0 1 x 1"), "line 3: \"x\" is no number");
    EXPECT_EQ(faultOf("LINE 0 256 continuous 1 0 0 0 1 1"), "line 3: something is missing at its end");
    EXPECT_EQ(faultOf("LINE 0 256 continuous 1 0 0 0 1 1 1 1"), "line 3: something is left over at its end");
    EXPECT_EQ(faultOf("\nCURVE 0 256"), "line 4: \"CURVE\" isn't known here");
    EXPECT_EQ(faultOf("LINE 7 256 continuous 1 0 0 0 1 1 1"),
              "line 3: a whole number from 0 to 0 is expected");
    EXPECT_EQ(faultOf("MESH 0 256 continuous 1 3 0 0 0 1 0 0 0 1 0 0 1 3 3"),
              "line 3: a whole number from 0 to 2 is expected");
    EXPECT_EQ(faultOf("TEXT 0 256 continuous 1 0 0 0 1 0 0 0 1 \"open"),
              "line 3: the closing quote is missing");
    EXPECT_EQ(faultOf("TABLE 0 256 continuous 1 0 0 0 \"\" 1 1000000 1000000"),
              "line 3: something is missing at its end");
}

}  // namespace
