#include "src/platform/gridlib/TrackView.h"

#include <algorithm>

namespace {

constexpr int64_t BEYOND = 100'000;
// Larger tables have several pixels to a step of the bar.
constexpr int64_t MOST_BAR_STEPS = 1 << 30;

}  // namespace

int TrackView::start(uint32_t at, uint32_t first) const {
    const int64_t header = scaledOffset(m_sizes.offset(1));
    const int64_t start = header + scaledOffset(m_sizes.offset(at)) - scaledOffset(m_sizes.offset(first));
    return static_cast<int>(std::clamp(start, -BEYOND, BEYOND));
}

int TrackView::end(uint32_t at) const { return at == 0 ? headerEnd() : start(at + 1, first()) - into(); }

uint32_t TrackView::lastFirst() const {
    // Everything that is measured in a view begins with this question.
    const Measured now{m_sizes.version(), m_length, m_dots};
    if (now != m_measured) {
        m_measured = now;
        m_lastFirst = measureLastFirst();
    }
    return m_lastFirst;
}

// The smallest one with which the last one's end is in view.
uint32_t TrackView::measureLastFirst() const {
    if (last() <= 1) return 1;
    const int64_t hidden = m_sizes.total() - int64_t{room()} * 96 / m_dots;
    if (hidden <= m_sizes.offset(1)) return 1;
    uint32_t first = m_sizes.at(hidden - 1);
    if (m_sizes.offset(first) < hidden) ++first;
    return std::clamp(first, 1u, last());
}

uint32_t TrackView::first() const { return std::min(m_first, lastFirst()); }

int TrackView::into() const {
    return m_into == 0 || m_first != first() ? 0 : std::clamp(m_into, 0, excess(m_first));
}

bool TrackView::setFirst(int64_t to, int into) {
    const uint32_t formerFirst = first();
    const int formerInto = this->into();
    m_first = static_cast<uint32_t>(std::clamp<int64_t>(to, 1, lastFirst()));
    m_into = into;
    return m_first != formerFirst || this->into() != formerInto;
}

bool TrackView::scrollBy(int64_t count, Stride stride) {
    const int pixels = std::max(stride == Stride::whole ? room() : room() / 4, 1);
    const bool forward = count > 0;
    uint32_t to = first();
    int into = this->into();
    for (; count != 0; count += forward ? -1 : 1) {
        if (forward && into < excess(to)) {
            into = std::min(into + pixels, excess(to));
        } else if (!forward && into > 0) {
            into = std::max(into - pixels, 0);
        } else if (to == (forward ? lastFirst() : 1)) {
            break;
        } else {
            to += forward ? 1 : -1;
            into = forward ? 0 : excess(to);
        }
    }
    return setFirst(to, into);
}

uint32_t TrackView::at(int pixel) const {
    if (pixel < headerEnd()) return 0;
    return atPosition(int64_t{pixel} - headerEnd() + position(first()) + into());
}

uint32_t TrackView::atPosition(int64_t position) const {
    uint32_t found = m_sizes.at((position + scaledOffset(m_sizes.offset(1))) * 96 / m_dots);
    // The scaled borders are rounded.
    while (found <= last() && this->position(found + 1) <= position) ++found;
    while (found > 1 && this->position(found) > position) --found;
    return found;
}

TrackView::Bar TrackView::bar() const {
    const int64_t pixels = lastPosition() / MOST_BAR_STEPS + 1;
    const int page = static_cast<int>(std::max<int64_t>(room() / pixels, 1));
    return {static_cast<int>(lastPosition() / pixels) + page - 1, page,
            static_cast<int>((position(first()) + into()) / pixels)};
}

bool TrackView::setBarPosition(int to) {
    const int64_t pixels = lastPosition() / MOST_BAR_STEPS + 1;
    const int64_t sought = std::clamp<int64_t>(to * pixels, 0, lastPosition());
    const uint32_t found = atPosition(sought);
    return setFirst(found, static_cast<int>(sought - position(found)));
}

uint32_t TrackView::lastInView() const {
    if (m_length <= headerEnd()) return first() - 1;
    return std::min(at(m_length - 1), last());
}

uint32_t TrackView::page() const {
    uint32_t to = lastInView();
    if (to >= first() && end(to) > m_length) --to;
    return to >= first() ? to - first() + 1 : 1;
}

bool TrackView::reveal(uint32_t at) {
    if (at == 0) return false;
    if (at < first()) return setFirst(at);
    if (at == first() || end(at) <= m_length) return false;
    // The smallest first one with which it ends within.
    const int64_t hidden = m_sizes.offset(at + 1) - int64_t{room()} * 96 / m_dots;
    uint32_t to = m_sizes.at(std::max<int64_t>(hidden, 0));
    if (m_sizes.offset(to) < hidden) ++to;
    return setFirst(std::min(to, at));
}
