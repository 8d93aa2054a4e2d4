// The heights of a table's rows, or the widths of its columns, in pixels at 96 dots per inch. Most have the
// default size, which costs nothing; sums and hits take logarithmic time. Portable.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

class TrackSizes {
  public:
    explicit TrackSizes(int32_t defaultSize) : m_default(defaultSize) {}

    // How many there are, the header counted. Those that go forget their sizes.
    void setCount(uint32_t count);
    uint32_t count() const { return m_count; }

    // Those from `from` to `to`, inclusive, get that size; 0 hides them. What is outside of the table, a size
    // below 0 or above LARGEST is ignored.
    void set(uint32_t from, uint32_t to, int32_t size);
    int32_t size(uint32_t at) const;
    // The sum of the sizes before that one.
    int64_t offset(uint32_t at) const;
    int64_t total() const { return offset(m_count); }
    // The one that covers the pixel at that offset: 0 below 0, count() from total() on.
    uint32_t at(int64_t offset) const;

    // Another one after each change of count or sizes, so that who has measured can tell whether it still
    // holds.
    uint64_t version() const { return m_version; }

    static constexpr int32_t LARGEST = 0x7FFF;

  private:
    static constexpr uint32_t BLOCK = 512;

    struct Block {
        int32_t uniform = -1;              // the size of all, where `sizes` is empty; below 0: the default
        std::unique_ptr<int32_t[]> sizes;  // BLOCK of them
    };

    int32_t sizeIn(const Block& block, uint32_t within) const;
    void reach(size_t block);
    void addExcess(size_t block, int64_t change);
    void setWithin(size_t block, uint32_t from, uint32_t to, int32_t size);

    int32_t m_default;
    uint32_t m_count = 1;
    uint64_t m_version = 0;
    // Up to the last block in which a size differs from the default.
    std::vector<Block> m_blocks;
    // A Fenwick tree over the blocks: by how much their sums exceed those of default sizes.
    std::vector<int64_t> m_excess;
};
