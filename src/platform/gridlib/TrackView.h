// Where the rows of a table stand in a view, or its columns: the header first, then from the first one in
// view on. Positions are in the view's pixels; the scale is the display's. Scrolling goes by whole rows, and
// through one that is larger than the view. Portable.
#pragma once

#include <algorithm>
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
    // How many pixels of the first one are scrolled away. Only one that is larger than the view has any.
    int into() const;
    // Whether that changed anything.
    bool setFirst(int64_t first, int into = 0);
    uint32_t lastFirst() const;  // the largest that first() can be
    // Scrolls by so many, back where it is below 0. One that is larger than the view is gone through first,
    // by that part of the view at a time.
    enum class Stride { quarter, whole };
    bool scrollBy(int64_t count, Stride stride);

    int headerEnd() const { return start(1, 1); }
    // Where it begins and ends. What is scrolled away begins before headerEnd(); what is far away in either
    // direction is told nearer than it is.
    int start(uint32_t at) const { return at == 0 ? 0 : start(at, first()) - into(); }
    int end(uint32_t at) const;
    // How much of the view is left to them beside the header.
    int room() const { return std::max(0, m_length - headerEnd()); }
    // The one at that pixel: 0 in the header and before it, count() behind the last one.
    uint32_t at(int pixel) const;
    // The last one of which something is in view; below first() where there is none.
    uint32_t lastInView() const;
    // The number of those that are wholly in view; at least 1.
    uint32_t page() const;
    // Scrolls as little as needed to have it in view.
    bool reveal(uint32_t at);

    // What a scroll bar shows, from 0 on; nothing can be scrolled where the page is all of it.
    struct Bar {
        int last, page, position;
        bool operator==(const Bar&) const = default;
    };
    Bar bar() const;
    bool setBarPosition(int position);

    uint32_t last() const { return m_sizes.count() - 1; }
    const TrackSizes& sizes() const { return m_sizes; }
    int scaled(int64_t size) const { return static_cast<int>(scaledOffset(size)); }

  private:
    int64_t scaledOffset(int64_t offset) const { return offset * m_dots / 96; }
    int start(uint32_t at, uint32_t first) const;
    // From the end of the header on, in pixels of the display.
    int64_t position(uint32_t at) const {
        return scaledOffset(m_sizes.offset(at)) - scaledOffset(m_sizes.offset(1));
    }
    uint32_t atPosition(int64_t position) const;
    int64_t lastPosition() const { return position(lastFirst()) + excess(lastFirst()); }
    // By how much it is larger than the view.
    int excess(uint32_t at) const { return std::max(0, scaled(m_sizes.size(at)) - room()); }
    uint32_t measureLastFirst() const;

    const TrackSizes& m_sizes;
    int m_dots = 96;
    int m_length = 0;
    uint32_t m_first = 1;
    int m_into = 0;

    // The last answer of lastFirst, and what it was measured from.
    struct Measured {
        uint64_t version;
        int length, dots;
        bool operator==(const Measured&) const = default;
    };
    mutable Measured m_measured{~uint64_t{0}, 0, 0};
    mutable uint32_t m_lastFirst = 1;
};
