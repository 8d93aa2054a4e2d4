// Programs that are checked: any text is read, and each finding lies in it.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "host/check/CheckProgram.h"
#include "host/check/LineTable.h"
#include "host/lisp/Text.h"
#include "tests/unit/check/TestKnowledge.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size > 20000) return 0;
    const std::u16string text = lisp::decodeFile({reinterpret_cast<const char*>(data), size});
    // A program that loads itself.
    const auto find = [&](std::u16string_view) { return check::Source{u"itself", text}; };
    const check::CheckedProgram checked({{u"program", text}}, testKnowledge(), find);
    const uint32_t lines = check::LineTable(text).count();
    for (const check::Finding& finding : checked.findings())
        if (finding.line >= lines || finding.endLine < finding.line || finding.text.empty()) abort();
    for (size_t i = 0; i < text.size(); i += 1 + text.size() / 8)
        checked.formsAround(static_cast<uint32_t>(i));
    return 0;
}
