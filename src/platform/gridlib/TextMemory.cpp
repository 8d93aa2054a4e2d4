#include "src/platform/gridlib/TextMemory.h"

#include <new>
#include <utility>

void* TextMemory::take(size_t bytes) {
    if (bytes > LARGEST) return ::operator new(bytes);
    const size_t size = (bytes + GRAIN - 1) / GRAIN * GRAIN;
    Free*& free = m_free[size / GRAIN];
    if (free) {
        ++m_inUse;
        return std::exchange(free, free->next);
    }
    if (size > m_restBytes) {
        m_blocks.push_back(std::make_unique_for_overwrite<std::byte[]>(BLOCK));
        m_rest = m_blocks.back().get();
        m_restBytes = BLOCK;
    }
    ++m_inUse;
    m_restBytes -= size;
    return std::exchange(m_rest, m_rest + size);
}

void TextMemory::giveBack(void* piece, size_t bytes) {
    if (bytes > LARGEST) return ::operator delete(piece);
    if (--m_inUse == 0) {
        m_blocks.clear();
        m_free.fill(nullptr);
        m_rest = nullptr;
        m_restBytes = 0;
        return;
    }
    Free*& free = m_free[(bytes + GRAIN - 1) / GRAIN];
    free = new (piece) Free{free};
}
