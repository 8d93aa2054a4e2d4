// Where the rows of a table stand in a view, or its columns: the header first, then from the first one in
// view on. Positions are in the view's pixels; the scale is the display's. Scrolling goes by whole rows.
// Portable.
#pragma once

#include <cstdint>

#include "src/platform/gridlib/TrackSizes.h"

class TrackView {
  public:
    explicit TrackView(const TrackSizes& sizes) : m_sizes(sizes) {}

    // Pixels per 96 of the table's.
    void setScale(int dotsPerInch) { m_dots = dotsPerInch; }
    int scale() const { return m_dots; }
    void setLength(int pixels) { m_length = pixels; }
    int length() const { return m_length; }

    // The first one behind the header; at most as far as the last one stays in view.
    uint32_t first() const;
    // Whether that changed anything.
    bool setFirst(int64_t first);
    uint32_t lastFirst() const;  // the largest that first() can be

    int headerEnd() const { return start(1, 1); }
    // Where it begins and ends. What is scrolled away begins before headerEnd(); what is far away in either
    // direction is told nearer than it is.
    int start(uint32_t at) const { return at == 0 ? 0 : start(at, first()); }
    int end(uint32_t at) const;
    // The one at that pixel: 0 in the header and before it, count() behind the last one.
    uint32_t at(int pixel) const;
    // The last one of which something is in view; below first() where there is none.
    uint32_t lastInView() const;
    // The number of those that are wholly in view; at least 1.
    uint32_t page() const;
    // Scrolls as little as needed to have it in view.
    bool reveal(uint32_t at);

    uint32_t last() const { return m_sizes.count() - 1; }
    const TrackSizes& sizes() const { return m_sizes; }
    int scaled(int64_t size) const { return static_cast<int>(scaledOffset(size)); }

  private:
    int64_t scaledOffset(int64_t offset) const { return offset * m_dots / 96; }
    int start(uint32_t at, uint32_t first) const;
    uint32_t measureLastFirst() const;

    const TrackSizes& m_sizes;
    int m_dots = 96;
    int m_length = 0;
    uint32_t m_first = 1;

    // The last answer of lastFirst, and what it was measured from.
    struct Measured {
        uint64_t version;
        int length, dots;
        bool operator==(const Measured&) const = default;
    };
    mutable Measured m_measured{~uint64_t{0}, 0, 0};
    mutable uint32_t m_lastFirst = 1;
};
