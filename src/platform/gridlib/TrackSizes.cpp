#include "src/platform/gridlib/TrackSizes.h"

#include <algorithm>
#include <bit>

int32_t TrackSizes::sizeIn(const Block& block, uint32_t within) const {
    const int32_t size = block.sizes ? block.sizes[within] : block.uniform;
    return size < 0 ? m_default : size;
}

// Makes room up to that block. The tree has a power of two of places, so that a doubled one needs only its
// new last place filled.
void TrackSizes::reach(size_t block) {
    if (block < m_blocks.size()) return;
    m_blocks.resize(block + 1);
    const size_t places = std::bit_ceil(m_blocks.size());
    while (m_excess.size() < places) {
        const size_t former = m_excess.size();
        const int64_t sum = former ? m_excess.back() : 0;
        m_excess.resize(former ? former * 2 : 1);
        m_excess.back() = sum;
    }
}

void TrackSizes::addExcess(size_t block, int64_t change) {
    if (change == 0) return;
    for (size_t i = block + 1; i <= m_excess.size(); i += i & (~i + 1)) m_excess[i - 1] += change;
}

void TrackSizes::setWithin(size_t index, uint32_t from, uint32_t to, int32_t size) {
    Block& block = m_blocks[index];
    int64_t change = int64_t{to - from + 1} * (size < 0 ? m_default : size);
    for (uint32_t i = from; i <= to; ++i) change -= sizeIn(block, i);
    if (from == 0 && to == BLOCK - 1) {
        block.sizes.reset();
        block.uniform = size;
    } else {
        if (!block.sizes) {
            block.sizes = std::make_unique<int32_t[]>(BLOCK);
            std::fill_n(block.sizes.get(), BLOCK, block.uniform);
        }
        std::fill(&block.sizes[from], &block.sizes[to] + 1, size);
    }
    addExcess(index, change);
}

void TrackSizes::setCount(uint32_t count) {
    if (count < m_count && !m_blocks.empty()) {
        const size_t last = std::min<size_t>(m_blocks.size(), (m_count - 1) / BLOCK + 1);
        for (size_t block = count / BLOCK; block < last; ++block)
            setWithin(block, block == count / BLOCK ? count % BLOCK : 0, BLOCK - 1, -1);
        m_blocks.resize(std::min<size_t>(m_blocks.size(), count / BLOCK + 1));
    }
    m_count = count;
    ++m_version;
}

void TrackSizes::set(uint32_t from, uint32_t to, int32_t size) {
    if (m_count == 0 || from >= m_count || size < 0 || size > LARGEST) return;
    to = std::min(to, m_count - 1);
    if (from > to) return;
    ++m_version;
    reach(to / BLOCK);
    for (size_t block = from / BLOCK; block <= to / BLOCK; ++block)
        setWithin(block, block == from / BLOCK ? from % BLOCK : 0,
                  block == to / BLOCK ? to % BLOCK : BLOCK - 1, size);
}

int32_t TrackSizes::size(uint32_t at) const {
    return at / BLOCK < m_blocks.size() ? sizeIn(m_blocks[at / BLOCK], at % BLOCK) : m_default;
}

int64_t TrackSizes::offset(uint32_t at) const {
    const size_t block = at / BLOCK;
    int64_t sum = int64_t{at} * m_default;
    for (size_t i = std::min(block, m_excess.size()); i > 0; i &= i - 1) sum += m_excess[i - 1];
    if (block >= m_blocks.size()) return sum;
    if (!m_blocks[block].sizes) return sum + int64_t{at % BLOCK} * (sizeIn(m_blocks[block], 0) - m_default);
    for (uint32_t i = 0; i < at % BLOCK; ++i) sum += sizeIn(m_blocks[block], i) - m_default;
    return sum;
}

uint32_t TrackSizes::at(int64_t offset) const {
    if (offset < 0) return 0;
    // Down the tree: the last block that begins at the offset or before it.
    const int64_t blockSize = int64_t{m_default} * BLOCK;
    size_t block = 0;
    int64_t rest = offset;
    for (size_t step = m_excess.size(); step > 0; step /= 2) {
        if (block + step > m_excess.size()) continue;
        const int64_t sum = static_cast<int64_t>(step) * blockSize + m_excess[block + step - 1];
        if (sum > rest) continue;
        rest -= sum;
        block += step;
    }
    uint64_t found = uint64_t{block} * BLOCK;
    if (block >= m_blocks.size()) {
        found += static_cast<uint64_t>(rest / m_default);
    } else {
        for (uint32_t i = 0; i < BLOCK && rest >= sizeIn(m_blocks[block], i); ++i, ++found)
            rest -= sizeIn(m_blocks[block], i);
    }
    return static_cast<uint32_t>(std::min<uint64_t>(found, m_count));
}
