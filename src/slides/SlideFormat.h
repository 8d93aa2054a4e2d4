// The slide file's header: the gate, the level, the byte order and the extents. Portable.
//
//   offset  bytes
//        0     13  the magic; the gate compares it as text of 16-bit units
//       18      1  level, 1 or 2
//       19      2  width of the slide's space, in the slide's byte order
//       21      2  its height
//       29      2  level 2: the byte-order mark, 0x1234 with the low byte first
//       31         level 2: the first record
//       34         level 1: the first record
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

// A 16-bit value in either byte order.
inline uint16_t readU16(const uint8_t* at, bool littleEndian) {
    return static_cast<uint16_t>(littleEndian ? at[0] | at[1] << 8 : at[0] << 8 | at[1]);
}

// The same, folded to a magnitude: there are no negative coordinates. 0xFFFF gives 1, 0x8000 gives 0x8000.
inline uint16_t readMagnitude(const uint8_t* at, bool littleEndian) {
    const uint16_t value = readU16(at, littleEndian);
    return static_cast<uint16_t>(value < 0x8000 ? value : 0x10000 - value);
}

// Compares the first units of `bytes` with all of `text`, as wcsncmp does. Units stand with the low byte
// first; what lies behind the end of `bytes` counts as zero.
bool beginsWithUnits(std::span<const uint8_t> bytes, std::u16string_view text);

// The gate: whether an image begins with the magic as 16-bit text.
//
// kept: no image passes both it and readSlideHeader(), which reads its fields at the offsets of a header with
// one byte a character.
bool slideMagicMatches(std::span<const uint8_t> image);

struct SlideHeader {
    uint8_t level = 2;
    bool littleEndian = true;
    uint16_t highX = 0;
    uint16_t highY = 0;
};

// The header behind the magic. Nothing where the level is unknown, where a level 1 image doesn't end in its
// end record, or where the image is shorter than its header.
std::optional<SlideHeader> readSlideHeader(std::span<const uint8_t> image);

// Where the records begin.
constexpr size_t firstRecord(uint8_t level) { return level == 1 ? 34 : 31; }
