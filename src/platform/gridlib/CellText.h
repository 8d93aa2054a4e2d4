// The text of a cell: immutable, 16 bytes. A short text lies within; a long one is shared by its copies, so
// that a text written to each cell of a row exists once. Portable. One thread only, as all of the grid.
#pragma once

#include <cstddef>
#include <cstdint>
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
    bool empty() const { return m_bytes[LENGTH_AT] == std::byte{0}; }
    bool operator==(const CellText& other) const;

    void swap(CellText& other) noexcept { std::swap(m_bytes, other.m_bytes); }

  private:
    struct Shared;
    static constexpr size_t LENGTH_AT = 15;
    static constexpr size_t SHORT_LENGTH = LENGTH_AT / sizeof(wchar_t);
    static constexpr std::byte LONG{0xFF};

    bool isLong() const { return m_bytes[LENGTH_AT] == LONG; }
    Shared* shared() const;
    void release();

    // A short text's letters, or the address of a shared one; the last byte is the length, or LONG. What
    // isn't used is 0, so that short texts compare as a whole.
    alignas(void*) std::byte m_bytes[16] = {};
};

static_assert(sizeof(CellText) == 16);
