// The Lisp: any text is read and run within bounds, and ends in a value or a Lisp error.
#include <memory>
#include <utility>
#include <vector>

#include "host/lisp/Interpreter.h"
#include "host/lisp/Machine.h"
#include "host/lisp/Reader.h"
#include "host/lisp/Text.h"
#include "tests/fuzz/Fuzz.h"

namespace {

class NoFiles : public lisp::FileAccess {
  public:
    std::filesystem::path resolve(std::u16string_view) const override { throw lisp::Error(u"no files here"); }
};

// One interpreter serves many inputs, as making it costs more than running most of them. What an input sets
// is undone after it; what can't be undone, names and memory, ends in an interpreter made anew.
class Workbench {
  public:
    explicit Workbench(uint64_t steps)
        : lisp({.stackBytes = 64 * 1024, .heapBytes = size_t(1) << 20, .steps = steps}) {
        lisp.setFileAccess(std::make_unique<NoFiles>());
        lisp.setOutput([](std::u16string_view) {});
        for (const auto& [name, symbol] : lisp.machine().symbols)
            m_values.emplace_back(symbol.get(), symbol->value);
        for (const auto& [symbol, value] : m_values) m_kept = lisp.cons(value, m_kept);
        m_bytes = lisp.heapBytesInUse();
    }

    lisp::Interpreter lisp;

    // Whether the next input finds all as the first one did, but for a few more names and some garbage.
    bool clean() {
        const lisp::SymbolTable& symbols = lisp.machine().symbols;
        const size_t before = m_values.size();
        if (symbols.size() > before + 100 || lisp.heapBytesInUse() > m_bytes + 64 * 1024) return false;
        if (symbols.size() > before)
            for (const auto& [name, symbol] : symbols) symbol->value = lisp::Value::nil();
        for (const auto& [symbol, value] : m_values) symbol->value = value;
        lisp.setCollectAlways(false);
        lisp.clearInterrupt();
        return true;
    }

  private:
    std::vector<std::pair<lisp::Symbol*, lisp::Value>> m_values;
    // The same values, out of reach of an input that gives their symbols others.
    lisp::Root m_kept{lisp};
    size_t m_bytes;
};

// What was read prints as a text that reads back as the same, and a prompt would have taken it as whole.
void checkReading(lisp::Interpreter& lisp, std::u16string_view text) {
    lisp::Reader reader(lisp.machine(), text, 0);
    try {
        for (lisp::Value form; reader.next(form);) {
            const std::u16string printed = lisp.print(form);
            require(lisp.print(lisp.read(printed)) == printed);
        }
    } catch (const lisp::Error&) {
        return;
    }
    require(lisp::Interpreter::isComplete(text));
}

void run(lisp::Interpreter& lisp, std::u16string_view text) {
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
}

}  // namespace

// Short stacks of allocations, and little memory held back from use, for speed: freed objects are met soon.
extern "C" const char* __asan_default_options() { return "malloc_context_size=4:quarantine_size_mb=4"; }

// The first byte chooses what is done with the text behind it: it is read, it is run, or it is run while
// objects are collected at each of its steps, which are few then.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static std::unique_ptr<Workbench> benches[2];
    if (size == 0 || size > 100) return 0;
    const bool reads = data[0] % 8 == 0;
    const bool collects = data[0] % 16 == 1;
    std::unique_ptr<Workbench>& bench = benches[collects];
    if (!bench) bench = std::make_unique<Workbench>(collects ? 20 : 100);
    lisp::Interpreter& lisp = bench->lisp;
    const std::u16string decoded = lisp::decodeFile({reinterpret_cast<const char*>(data) + 1, size - 1});
    // Without the zero behind a string, so that reading beyond the end is seen.
    const std::vector<char16_t> exact(decoded.begin(), decoded.end());
    const std::u16string_view text(exact.data(), exact.size());
    if (reads) {
        lisp.read(u"enter");  // from here on the stack is counted
        checkReading(lisp, text);
    } else {
        lisp.setCollectAlways(collects);
        run(lisp, text);
    }
    if (!bench->clean()) bench.reset();
    return 0;
}
