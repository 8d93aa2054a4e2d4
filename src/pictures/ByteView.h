// Numbers in the bytes of a file, low byte first. Portable.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

class ByteView {
  public:
    explicit ByteView(std::span<const uint8_t> bytes) : m_bytes(bytes) {}

    size_t size() const { return m_bytes.size(); }
    // 64 bits wide, so that sums and products of what a file says don't overflow.
    bool has(uint64_t offset, uint64_t count) const {
        return offset <= m_bytes.size() && count <= m_bytes.size() - offset;
    }
    // The view from there on, of at most `count` bytes.
    ByteView part(uint64_t offset, uint64_t count = SIZE_MAX) const {
        if (offset > m_bytes.size()) offset = m_bytes.size();
        const uint64_t rest = m_bytes.size() - offset;
        return ByteView(m_bytes.subspan(offset, count < rest ? count : rest));
    }

    // 0 behind the end.
    uint64_t u8(uint64_t offset) const { return number(offset, 1); }
    uint64_t u16(uint64_t offset) const { return number(offset, 2); }
    uint64_t u32(uint64_t offset) const { return number(offset, 4); }
    // High byte first.
    uint64_t big16(uint64_t offset) const { return u8(offset) << 8 | u8(offset + 1); }
    uint64_t big32(uint64_t offset) const { return big16(offset) << 16 | big16(offset + 2); }

  private:
    uint64_t number(uint64_t offset, uint64_t count) const {
        uint64_t value = 0;
        if (!has(offset, count)) return 0;
        for (uint64_t at = count; at-- > 0;) value = value << 8 | m_bytes[offset + at];
        return value;
    }

    std::span<const uint8_t> m_bytes;
};
