// The records of a slide, one after the other. Reads nothing behind the image and allocates nothing.
// Portable.
//
// A record begins with a 16-bit word in the slide's byte order, whose high byte tells what it is:
//
//   high byte   record            bytes     contents
//   00 to 7F    vector            8         x1 (the word itself), y1, x2, y2
//   80 to FA                                ends the slide
//   FB          offset vector     5         dx1 (the word's low byte), dy1, dx2, dy2: one byte each, unsigned
//   FC          end               2         ends the slide
//   FD          solid fill        6 + 6n    n at +2, two bytes skipped, n groups: two bytes skipped, x, y
//   FE          common endpoint   3         dx (the word's low byte), dy
//   FF          colour            2         the index (the word's low byte)
#pragma once

#include <cstdint>
#include <span>

#include "src/slides/SlideFormat.h"

struct SlideRecord {
    enum class Kind : uint8_t { Vector, OffsetVector, Fill, Endpoint, Color };

    Kind kind;
    // Vector: the ends. Offset vector: both offsets. Common endpoint: the first pair is the offset.
    uint16_t x1, y1, x2, y2;
    uint8_t color;
    uint16_t vertexCount;
    const uint8_t* vertices;  // groups of VERTEX_BYTES within the image, all of them there
};

class SlideRecordReader {
  public:
    static constexpr size_t VERTEX_BYTES = 6;

    // `image` is borrowed.
    SlideRecordReader(std::span<const uint8_t> image, uint8_t level, bool littleEndian)
        : m_at(image.data() + (firstRecord(level) < image.size() ? firstRecord(level) : image.size())),
          m_end(image.data() + image.size()),
          m_littleEndian(littleEndian) {}

    // False at the end of the slide, which may be a record that runs past the end of the image.
    bool next(SlideRecord& record) {
        if (!holds(2)) return false;
        const uint16_t word = readU16(m_at, m_littleEndian);
        const auto low = static_cast<uint8_t>(word);
        const auto high = static_cast<uint8_t>(word >> 8);
        if (high < 0x80) return vector(record, word);
        switch (high) {
            case 0xFB:
                return offsetVector(record, low);
            case 0xFD:
                return fill(record);
            case 0xFE:
                return endpoint(record, low);
            case 0xFF:
                return color(record, low);
            default:
                return false;
        }
    }

    uint16_t vertexX(const uint8_t* group) const { return readMagnitude(group + 2, m_littleEndian); }
    uint16_t vertexY(const uint8_t* group) const { return readMagnitude(group + 4, m_littleEndian); }

  private:
    bool holds(size_t bytes) const { return static_cast<size_t>(m_end - m_at) >= bytes; }

    bool vector(SlideRecord& record, uint16_t word) {
        if (!holds(8)) return false;
        record.kind = SlideRecord::Kind::Vector;
        record.x1 = word;
        record.y1 = readMagnitude(m_at + 2, m_littleEndian);
        record.x2 = readMagnitude(m_at + 4, m_littleEndian);
        record.y2 = readMagnitude(m_at + 6, m_littleEndian);
        m_at += 8;
        return true;
    }

    bool offsetVector(SlideRecord& record, uint8_t low) {
        if (!holds(5)) return false;
        record.kind = SlideRecord::Kind::OffsetVector;
        record.x1 = low;
        record.y1 = m_at[2];
        record.x2 = m_at[3];
        record.y2 = m_at[4];
        m_at += 5;
        return true;
    }

    bool fill(SlideRecord& record) {
        if (!holds(6)) return false;
        const uint16_t count = readU16(m_at + 2, m_littleEndian);
        const size_t bytes = 6 + VERTEX_BYTES * count;
        if (!holds(bytes)) return false;
        record.kind = SlideRecord::Kind::Fill;
        record.vertexCount = count;
        record.vertices = m_at + 6;
        m_at += bytes;
        return true;
    }

    bool endpoint(SlideRecord& record, uint8_t low) {
        if (!holds(3)) return false;
        record.kind = SlideRecord::Kind::Endpoint;
        record.x1 = low;
        record.y1 = m_at[2];
        m_at += 3;
        return true;
    }

    bool color(SlideRecord& record, uint8_t low) {
        record.kind = SlideRecord::Kind::Color;
        record.color = low;
        m_at += 2;
        return true;
    }

    const uint8_t* m_at;
    const uint8_t* m_end;
    bool m_littleEndian;
};
