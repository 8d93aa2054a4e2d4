// princ and its kin, to the host's output or to a file.
#include "host/lisp/Builtins.h"
#include "host/lisp/Machine.h"
#include "host/lisp/Text.h"

namespace lisp {

namespace {

// To the file that is argument `index`, or to the output where it is missing or nil.
void writeTo(Call& call, size_t index, std::u16string_view text) {
    if (call[index].isNil()) return call.lisp.write(text);
    if (!call[index].isFile()) call.expected(index, "a file");
    File* file = call[index].asFile();
    if (!file->open || file->reading) call.expected(index, "a file that is open for writing");
    file->output << toUtf8(text);
    if (!file->output) throw Error(u"can't write to " + file->name);
}

Value princ(Call& call) {
    if (call.count() == 0) return Value::none();
    writeTo(call, 1, call.lisp.display(call[0]));
    return call[0];
}

Value prin1(Call& call) {
    if (call.count() == 0) return Value::none();
    writeTo(call, 1, call.lisp.print(call[0]));
    return call[0];
}

Value print(Call& call) {
    if (call.count() == 0) {
        call.lisp.write(u"\n");
        return Value::none();
    }
    writeTo(call, 1, u"\n" + call.lisp.print(call[0]) + u" ");
    return call[0];
}

Value prompt(Call& call) {
    call.lisp.write(call.text(0));
    return Value::nil();
}

Value newLine(Call& call) {
    call.lisp.write(u"\n");
    return Value::nil();
}

Value writeLine(Call& call) {
    writeTo(call, 1, call.text(0) + u"\n");
    return call[0];
}

Value writeCharacter(Call& call) {
    int32_t code = call.integer(0);
    if (code < 1 || code > 0xFFFF) call.expected(0, "a character's code");
    writeTo(call, 1, std::u16string(1, char16_t(code)));
    return call[0];
}

constexpr Definition FUNCTIONS[] = {
    {u"princ", princ, 0, 2},
    {u"prin1", prin1, 0, 2},
    {u"print", print, 0, 2},
    {u"prompt", prompt, 1, 1},
    {u"terpri", newLine, 0, 0},
    {u"write-line", writeLine, 1, 2},
    {u"write-char", writeCharacter, 1, 2},
};

}  // namespace

void defineOutputFunctions(Interpreter& lisp) { defineAll(lisp, FUNCTIONS); }

}  // namespace lisp
