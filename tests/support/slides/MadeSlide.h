// Slides put together record by record. What a reader must not look at holds 0xEE.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "src/slides/CSlideObject.h"

struct SlideForm {
    int level;
    bool littleEndian;
};

constexpr SlideForm EVERY_FORM[] = {{1, true}, {1, false}, {2, true}, {2, false}};

class MadeSlide {
  public:
    MadeSlide(SlideForm form, int highX, int highY) : m_littleEndian(form.littleEndian) {
        for (const char c : {'K', 'o', 'r', 'v', 'a', 'l', 'e', ' ', 'S', 'l', 'i', 'd', 'e'}) byte(c);
        unread(5).byte(form.level).word(highX).word(highY);
        if (form.level == 2)
            unread(6).word(0x1234);
        else
            unread(11);
    }

    MadeSlide& vector(int x1, int y1, int x2, int y2) { return word(x1).word(y1).word(x2).word(y2); }
    MadeSlide& offsetVector(int dx1, int dy1, int dx2, int dy2) {
        return word(0xFB00 | dx1).byte(dy1).byte(dx2).byte(dy2);
    }
    MadeSlide& endpoint(int dx, int dy) { return word(0xFE00 | dx).byte(dy); }
    MadeSlide& color(int index) { return word(0xFF00 | index); }
    MadeSlide& fill(const std::vector<std::pair<int, int>>& corners) {
        word(0xFD00).word(static_cast<int>(corners.size())).unread(2);
        for (const auto& [x, y] : corners) unread(2).word(x).word(y);
        return *this;
    }
    MadeSlide& end() { return word(0xFC00); }

    MadeSlide& byte(int value) {
        m_bytes.push_back(static_cast<uint8_t>(value));
        return *this;
    }
    MadeSlide& word(int value) {
        const int low = value & 0xFF, high = value >> 8 & 0xFF;
        return m_littleEndian ? byte(low).byte(high) : byte(high).byte(low);
    }

    operator const std::vector<uint8_t>&() const { return m_bytes; }
    std::vector<uint8_t> bytes() const { return m_bytes; }

  private:
    MadeSlide& unread(int count) {
        for (; count > 0; --count) byte(0xEE);
        return *this;
    }

    bool m_littleEndian;
    std::vector<uint8_t> m_bytes;
};

// A slide past the gate's comparison, which refuses them all.
class OpenSlide : public CSlideObject {
  public:
    OpenSlide() = default;
    explicit OpenSlide(std::vector<uint8_t> image) { Adopt(std::move(image), {}); }
    using CSlideObject::Adopt;
};
