// The language server: any bytes are taken as messages, and a server that was initialized answers on.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "host/editor/LanguageServer.h"
#include "host/editor/MessageReader.h"
#include "tests/unit/check/TestKnowledge.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    editor::MessageReader reader;
    editor::LanguageServer server(testKnowledge(), {}, editor::FunctionGuide("### (wex_get_tile *tile*)\n"));
    server.take(R"({"id":1,"method":"initialize","params":{}})");
    // In two pieces, as a pipe may bring them.
    reader.feed(bytes.substr(0, size / 2));
    while (const auto message = reader.next()) server.take(*message);
    reader.feed(bytes.substr(size / 2));
    while (const auto message = reader.next()) server.take(*message);
    server.findings();
    return 0;
}
