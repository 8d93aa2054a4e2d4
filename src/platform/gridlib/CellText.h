// The text of a cell: immutable, 16 bytes. A short text lies within; a long one is shared by its copies, so
// that a text written to each cell of a row exists once. Portable. One thread only, as all of the grid.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

class CellText {
  public:
    CellText() noexcept = default;
    CellText(std::wstring_view text);
    CellText(const CellText& other) noexcept;
    CellText(CellText&& other) noexcept { swap(other); }
    CellText& operator=(CellText other) noexcept {
        swap(other);
        return *this;
    }
    ~CellText() {
        if (isLong()) release();
    }

    std::wstring_view view() const;
    bool empty() const { return words()[1] >> LENGTH_SHIFT == 0; }
    bool operator==(const CellText& other) const;

    void swap(CellText& other) noexcept {
        const Words own = words();
        setWords(other.words());
        other.setWords(own);
    }

  private:
    struct Shared;
    using Words = std::array<uint64_t, 2>;
    static constexpr size_t SHORT_LENGTH = (sizeof(Words) - 1) / sizeof(wchar_t);
    static constexpr int LENGTH_SHIFT = 56;
    static constexpr uint64_t LONG = 0xFF;
    static constexpr size_t LONGEST = 0x7FFFFFFF;

    bool isLong() const { return words()[1] >> LENGTH_SHIFT == LONG; }
    // All 16 bytes at a time, which is many times faster than byte by byte.
    Words words() const {
        Words words;
        std::memcpy(words.data(), m_bytes, sizeof m_bytes);
        return words;
    }
    void setWords(Words words) { std::memcpy(m_bytes, words.data(), sizeof m_bytes); }
    Shared* shared() const;
    void release();

    // A short text's letters, or the address of a shared one; the upmost byte is the length, or LONG. What
    // isn't used is 0, so that short texts compare as a whole.
    alignas(uint64_t) std::byte m_bytes[sizeof(Words)] = {};
};

static_assert(sizeof(CellText) == 16);
// The letters are the first bytes.
static_assert(std::endian::native == std::endian::little);
