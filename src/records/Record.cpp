#include "src/records/Record.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <new>

std::wstring_view Record::field(size_t at) const {
    if (at >= size()) return L"";
    const uint32_t begin = m_block->begin(at);
    return {m_block->chars() + begin, m_block->ends()[at] - begin};
}

bool Record::operator==(const Record& other) const {
    if (m_block == other.m_block) return true;
    if (size() != other.size() || !m_block) return false;
    const uint32_t* ends = m_block->ends();
    return std::equal(ends, ends + m_block->count, other.m_block->ends()) &&
           m_block->allChars() == other.m_block->allChars();
}

size_t Record::hash() const { return m_block ? std::hash<std::wstring_view>()(m_block->allChars()) : 0; }

Record::Block* Record::newBlock(size_t fields, size_t chars) {
    constexpr size_t most = std::numeric_limits<uint32_t>::max();
    if (fields > most || chars > most) throw std::bad_alloc();
    void* memory = ::operator new(sizeof(Block) + fields * sizeof(uint32_t) + chars * sizeof(wchar_t));
    return new (memory) Block{1, static_cast<uint32_t>(fields)};
}

void Record::release() noexcept {
    if (m_block && --m_block->owners == 0) ::operator delete(m_block);
}
