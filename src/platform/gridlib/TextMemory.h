// Memory for many small texts: pieces of equal size are cut from large ones and used again when they are
// given back. The large ones go when nothing of them is in use any more. One thread only. Portable.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

class TextMemory {
  public:
    TextMemory() = default;
    TextMemory(const TextMemory&) = delete;
    TextMemory& operator=(const TextMemory&) = delete;

    // That many bytes, aligned as a number of 8 bytes is; to be given back with the same count.
    void* take(size_t bytes);
    void giveBack(void* piece, size_t bytes);

  private:
    static constexpr size_t GRAIN = 8;
    static constexpr size_t LARGEST = 512;
    static constexpr size_t BLOCK = 64 * 1024;

    struct Free {
        Free* next;
    };

    std::array<Free*, LARGEST / GRAIN + 1> m_free{};  // by size
    std::vector<std::unique_ptr<std::byte[]>> m_blocks;
    std::byte* m_rest = nullptr;  // of the last block
    size_t m_restBytes = 0;
    size_t m_inUse = 0;
};
