#include "host/documents/DrawingFunctions.h"

#include <stdexcept>

#include "host/database/DrawingFile.h"
#include "host/documents/DrawingCalls.h"
#include "host/documents/DrawingWindow.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace drawing_calls {
namespace {

using lisp::Call;
using lisp::Error;
using lisp::Value;

[[noreturn]] void failOnFile(const std::u16string& what, const std::u16string& name,
                             const std::exception& fault) {
    throw Error(u"can't " + what + u" \"" + name + u"\": " + lispText(wideFromUtf8(fault.what())));
}

std::wstring pathOf(Call& call) { return call.lisp.files().resolve(call.text(0)).wstring(); }

Value drawOpen(Call& call) {
    try {
        const std::string left = document().database.read(pathOf(call), HOST_SHARE_NONE);
        if (!left.empty())
            host().console().print(wideText(call.text(0)) + L": " + wideFromUtf8(left) + L"\n");
    } catch (const std::exception& fault) {
        failOnFile(u"read", call.text(0), fault);
    }
    document().pen = {};
    changed();
    return Value::truth();
}

Value drawSave(Call& call) {
    try {
        writeWhole(pathOf(call), cad::drawingText(drawing()));
    } catch (const std::exception& fault) {
        failOnFile(u"write", call.text(0), fault);
    }
    return Value::truth();
}

Value drawNew(Call&) {
    document().database.setDrawing({});
    document().pen = {};
    changed();
    return Value::truth();
}

DrawingWindow& window() {
    host().mainFrame();
    return *DrawingWindow::current();
}

Value drawOrbit(Call& call) {
    const double x = number(call, 0);
    window().orbit(x, number(call, 1));
    return Value::truth();
}

Value drawZoom(Call& call) {
    window().zoom(positive(call, 0));
    return Value::truth();
}

Value drawPan(Call& call) {
    const double x = number(call, 0);
    window().move(x, number(call, 1));
    return Value::truth();
}

Value drawShow(Call& call) {
    const cad::Block& shown = call[0].isNil() ? drawing().modelSpace() : blockNamed(call.text(0));
    const HostVector3d direction = directionOr(call, 1, {0, 0, 1});
    window().show(shown, direction);
    return Value::truth();
}

// Files and the screen.
constexpr Row ROWS[] = {
    {u"draw_open", drawOpen, 1, 1}, {u"draw_save", drawSave, 1, 1},   {u"draw_new", drawNew, 0, 0},
    {u"draw_show", drawShow, 0, 2}, {u"draw_orbit", drawOrbit, 2, 2}, {u"draw_zoom", drawZoom, 1, 1},
    {u"draw_pan", drawPan, 2, 2},
};

}  // namespace
}  // namespace drawing_calls

void defineDrawingFunctions(lisp::Interpreter& lisp) {
    drawing_calls::defineEntityFunctions(lisp);
    drawing_calls::definePenFunctions(lisp);
    drawing_calls::defineQuestions(lisp);
    drawing_calls::define(lisp, drawing_calls::ROWS);
}
