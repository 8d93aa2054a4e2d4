// The Lisp: any text is read and run within bounds, and ends in a value or a Lisp error.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "host/lisp/Interpreter.h"
#include "host/lisp/Machine.h"
#include "host/lisp/Reader.h"
#include "host/lisp/Text.h"

static void require(bool condition) {
    if (!condition) abort();
}

namespace {

class NoFiles : public lisp::FileAccess {
  public:
    std::filesystem::path resolve(std::u16string_view) const override { throw lisp::Error(u"no files here"); }
};

// What was read prints as a text that reads back as the same, and a prompt would have taken it as whole.
void checkReading(lisp::Interpreter& lisp, std::u16string_view text) {
    lisp::Reader reader(lisp.machine(), text, 0);
    try {
        for (lisp::Value form; reader.next(form);) {
            std::u16string printed = lisp.print(form);
            require(lisp.print(lisp.read(printed)) == printed);
        }
    } catch (const lisp::Error&) {
        return;
    }
    require(lisp::Interpreter::isComplete(text));
}

}  // namespace

// The first byte chooses whether objects are collected at every step.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const bool collectAlways = data[0] & 1;
    // Fewer steps where each costs a collection.
    const uint64_t steps = collectAlways ? 300 : 3000;
    lisp::Interpreter lisp({.stackBytes = 256 * 1024, .heapBytes = size_t(8) << 20, .steps = steps});
    lisp.setFileAccess(std::make_unique<NoFiles>());
    lisp.setOutput([](std::u16string_view) {});
    std::u16string text = lisp::decodeFile({reinterpret_cast<const char*>(data) + 1, size - 1});
    lisp.read(u"enter");
    checkReading(lisp, text);
    lisp.setCollectAlways(collectAlways);
    try {
        lisp.evalText(text, u"fuzz");
    } catch (const lisp::Error&) {
        // Whatever was wrong, the interpreter goes on.
        lisp.clearInterrupt();
        try {
            require(lisp.eval(lisp::Value::integer(1)).asInteger() == 1);
        } catch (const lisp::Error&) {
            abort();
        }
    }
    return 0;
}
