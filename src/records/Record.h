// One record of a table: its texts in order. Portable; for one thread.
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

// The texts lie in one piece of memory and never change, so copies share them: a million records cost little
// more than their text, and a record that is shown, tracked and read costs it once.
class Record {
  public:
    Record() = default;  // without fields
    // `fieldAt(i)` gives the text of field i, for i from 0 to count - 1; asked twice for each.
    template <class FieldAt>
    Record(size_t count, FieldAt fieldAt);
    Record(const Record& other) noexcept : m_block(other.m_block) {
        if (m_block) ++m_block->owners;
    }
    Record(Record&& other) noexcept : m_block(std::exchange(other.m_block, nullptr)) {}
    Record& operator=(Record other) noexcept {
        std::swap(m_block, other.m_block);
        return *this;
    }
    ~Record() { release(); }

    size_t size() const { return m_block ? m_block->count : 0; }
    // A NUL follows the text. Empty where there is no such field. Lives as long as any record that shares it.
    std::wstring_view field(size_t at) const;

    // The same number of fields, and all equal, code unit by code unit.
    bool operator==(const Record& other) const;
    // Equal for equal records.
    size_t hash() const;

  private:
    // Behind it in memory: for each field the place of the NUL at its end, then the characters.
    struct Block {
        uint32_t owners;
        uint32_t count;

        uint32_t* ends() { return reinterpret_cast<uint32_t*>(this + 1); }
        wchar_t* chars() { return reinterpret_cast<wchar_t*>(ends() + count); }
        uint32_t begin(size_t at) { return at ? ends()[at - 1] + 1 : 0; }
        std::wstring_view allChars() { return {chars(), begin(count)}; }
    };

    // Throws std::bad_alloc where so many can't be had.
    static Block* newBlock(size_t fields, size_t chars);
    void release() noexcept;

    Block* m_block = nullptr;  // null without fields
};

template <class FieldAt>
Record::Record(size_t count, FieldAt fieldAt) {
    if (count == 0) return;
    size_t chars = count;  // the NULs
    for (size_t at = 0; at < count; ++at) chars += std::wstring_view(fieldAt(at)).size();
    m_block = newBlock(count, chars);
    wchar_t* to = m_block->chars();
    for (size_t at = 0; at < count; ++at) {
        const std::wstring_view text = fieldAt(at);
        to += text.copy(to, text.size());
        m_block->ends()[at] = static_cast<uint32_t>(to - m_block->chars());
        *to++ = L'\0';
    }
}
