// Takes the messages of the language server protocol out of a stream of bytes.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace editor {

class MessageReader {
  public:
    void feed(std::string_view bytes) { m_bytes += bytes; }
    // The next whole message, without its header; an empty one stands for a header that tells no length, or
    // one beyond what is taken, whose message is passed over.
    std::optional<std::string> next();

  private:
    std::string m_bytes;
    size_t m_toSkip = 0;
};

// A message with its header.
std::string framed(std::string_view message);

}  // namespace editor
