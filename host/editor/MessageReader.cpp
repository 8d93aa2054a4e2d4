#include "host/editor/MessageReader.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace editor {

namespace {

constexpr size_t LONGEST_MESSAGE = size_t(64) << 20;
constexpr size_t LONGEST_HEADER = 4096;
constexpr std::string_view END_OF_HEADER = "\r\n\r\n";
constexpr std::string_view LENGTH = "content-length:";

std::optional<size_t> lengthIn(std::string_view header) {
    while (!header.empty()) {
        const size_t end = std::min(header.find("\r\n"), header.size());
        std::string line(header.substr(0, end));
        header.remove_prefix(std::min(end + 2, header.size()));
        std::transform(line.begin(), line.end(), line.begin(),
                       [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
        if (!line.starts_with(LENGTH)) continue;
        const size_t begin = std::min(line.find_first_not_of(' ', LENGTH.size()), line.size());
        size_t length = 0;
        const auto [at, fault] = std::from_chars(line.data() + begin, line.data() + line.size(), length);
        const bool isWhole = line.find_first_not_of(' ', static_cast<size_t>(at - line.data())) == line.npos;
        if (fault == std::errc() && isWhole) return length;
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string> MessageReader::next() {
    const size_t skipped = std::min(m_toSkip, m_bytes.size());
    m_bytes.erase(0, skipped);
    m_toSkip -= skipped;
    const size_t end = m_bytes.find(END_OF_HEADER);
    if (end == m_bytes.npos) {
        if (m_bytes.size() <= LONGEST_HEADER) return std::nullopt;
        m_bytes.clear();
        return std::string();
    }
    const std::optional<size_t> length = lengthIn(std::string_view(m_bytes).substr(0, end));
    const size_t begin = end + END_OF_HEADER.size();
    if (!length || *length > LONGEST_MESSAGE) {
        m_bytes.erase(0, begin);
        m_toSkip = length.value_or(0);
        return std::string();
    }
    if (m_bytes.size() - begin < *length) return std::nullopt;
    std::string message = m_bytes.substr(begin, *length);
    m_bytes.erase(0, begin + *length);
    // An empty message is no JSON either way.
    return message;
}

std::string framed(std::string_view message) {
    return "Content-Length: " + std::to_string(message.size()) + "\r\n\r\n" + std::string(message);
}

}  // namespace editor
