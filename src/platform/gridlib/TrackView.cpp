#include "src/platform/gridlib/TrackView.h"

#include <algorithm>

namespace {

constexpr int64_t BEYOND = 100'000;

}  // namespace

int TrackView::start(uint32_t at, uint32_t first) const {
    const int64_t header = scaledOffset(m_sizes.offset(1));
    const int64_t start = header + scaledOffset(m_sizes.offset(at)) - scaledOffset(m_sizes.offset(first));
    return static_cast<int>(std::clamp(start, -BEYOND, BEYOND));
}

int TrackView::end(uint32_t at) const { return at == 0 ? headerEnd() : start(at + 1, first()); }

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
    const int64_t room = std::max(0, m_length - headerEnd());
    const int64_t hidden = m_sizes.total() - room * 96 / m_dots;
    if (hidden <= m_sizes.offset(1)) return 1;
    uint32_t first = m_sizes.at(hidden - 1);
    if (m_sizes.offset(first) < hidden) ++first;
    return std::clamp(first, 1u, last());
}

uint32_t TrackView::first() const { return std::min(m_first, lastFirst()); }

bool TrackView::setFirst(int64_t to) {
    const uint32_t former = first();
    m_first = static_cast<uint32_t>(std::clamp<int64_t>(to, 1, lastFirst()));
    return m_first != former;
}

uint32_t TrackView::at(int pixel) const {
    if (pixel < headerEnd()) return 0;
    const int64_t scaled = int64_t{pixel} - headerEnd() + scaledOffset(m_sizes.offset(first()));
    uint32_t found = m_sizes.at(scaled * 96 / m_dots);
    // The scaled borders are rounded.
    while (found <= last() && end(found) <= pixel) ++found;
    while (found > first() && start(found) > pixel) --found;
    return found;
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
    if (end(at) <= m_length) return false;
    // The smallest first one with which it ends within.
    const int64_t room = std::max(0, m_length - headerEnd());
    const int64_t hidden = m_sizes.offset(at + 1) - room * 96 / m_dots;
    uint32_t to = m_sizes.at(std::max<int64_t>(hidden, 0));
    if (m_sizes.offset(to) < hidden) ++to;
    return setFirst(std::min(to, at));
}
