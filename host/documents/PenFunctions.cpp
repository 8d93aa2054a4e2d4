// Lisp functions that say with what entities are drawn, and in which block.
#include <algorithm>

#include "host/documents/DrawingCalls.h"

namespace drawing_calls {
namespace {

using lisp::Call;
using lisp::Error;
using lisp::Value;

constexpr const char16_t* PATTERN_NAMES[] = {u"continuous", u"dashed", u"dotted", u"dashdot"};

Value drawLayer(Call& call) {
    const uint32_t number = drawing().layerNamed(call.text(0));
    if (!call[1].isNil())
        drawing().layer(number).color = static_cast<cad::ColorIndex>(std::clamp(call.integer(1), 1, 255));
    document().pen.layer = number;
    changed();
    return Value::truth();
}

Value drawShowLayer(Call& call) {
    drawing().layer(drawing().layerNamed(call.text(0))).visible = !call[1].isNil();
    // What was made from the blocks holds what layers showed.
    for (const auto& block : drawing().blocks()) block->touch();
    changed();
    return Value::truth();
}

Value drawColor(Call& call) {
    document().pen.color =
        call[0].isNil() ? cad::BY_LAYER : static_cast<cad::ColorIndex>(std::clamp(call.integer(0), 1, 255));
    return Value::truth();
}

Value drawWidth(Call& call) {
    document().pen.width = static_cast<float>(positive(call, 0));
    return Value::truth();
}

Value drawPattern(Call& call) {
    for (size_t at = 0; at < std::size(PATTERN_NAMES); ++at) {
        if (call.text(0) != PATTERN_NAMES[at]) continue;
        document().pen.pattern = static_cast<cad::LinePattern>(at);
        return Value::truth();
    }
    call.expected(0, "\"continuous\", \"dashed\", \"dotted\" or \"dashdot\"");
}

Value drawBlock(Call& call) {
    const std::u16string name = call[0].isNil() ? cad::MODEL_SPACE : call.text(0);
    if (name.empty()) call.expected(0, "a name");
    if (!drawing().block(name)) drawing().addBlock(name);
    document().pen.block = name;
    return call.lisp.string(name);
}

Value drawTableStyle(Call& call) {
    cad::TableStyle style{.name = call.text(0)};
    style.textHeight = positive(call, 1);
    style.rowHeight = positive(call, 2);
    style.columnWidth = positive(call, 3);
    drawing().addTableStyle(std::move(style));
    return Value::truth();
}

constexpr Row ROWS[] = {
    {u"draw_layer", drawLayer, 1, 2},           {u"draw_show_layer", drawShowLayer, 2, 2},
    {u"draw_color", drawColor, 1, 1},           {u"draw_width", drawWidth, 1, 1},
    {u"draw_pattern", drawPattern, 1, 1},       {u"draw_block", drawBlock, 1, 1},
    {u"draw_tablestyle", drawTableStyle, 4, 4},
};

}  // namespace

void definePenFunctions(lisp::Interpreter& lisp) { define(lisp, ROWS); }

}  // namespace drawing_calls
