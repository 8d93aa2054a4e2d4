#include "src/platform/gridlib/CellText.h"

#include <new>

#include "src/platform/gridlib/TextMemory.h"

namespace {

// Of all grids. Never destroyed, as texts of static duration may outlive it.
TextMemory& textMemory() {
    static auto& memory = *new TextMemory;
    return memory;
}

}  // namespace

// The letters follow it in the same piece of memory.
struct CellText::Shared {
    uint32_t owners;
    uint32_t length;

    wchar_t* letters() { return reinterpret_cast<wchar_t*>(this + 1); }
    std::wstring_view view() { return {letters(), length}; }
    static size_t bytes(size_t length) { return sizeof(Shared) + length * sizeof(wchar_t); }
};

CellText::Shared* CellText::shared() const {
    return reinterpret_cast<Shared*>(static_cast<uintptr_t>(words()[0]));
}

CellText::CellText(std::wstring_view text) {
    if (text.size() <= SHORT_LENGTH) {
        // Letter by letter into words: bytes that are written one by one and read as words wait for each
        // other.
        constexpr size_t IN_WORD = sizeof(uint64_t) / sizeof(wchar_t);
        constexpr int BITS = 8 * sizeof(wchar_t);
        Words words{};
        for (size_t i = 0; i < text.size(); ++i) {
            const auto letter = static_cast<uint64_t>(text[i]) & (~uint64_t{0} >> (64 - BITS));
            words[i / IN_WORD] |= letter << BITS * static_cast<int>(i % IN_WORD);
        }
        words[1] |= uint64_t{text.size()} << LENGTH_SHIFT;
        setWords(words);
        return;
    }
    if (text.size() > LONGEST) text = text.substr(0, LONGEST);
    void* memory = textMemory().take(Shared::bytes(text.size()));
    auto* shared = new (memory) Shared{1, static_cast<uint32_t>(text.size())};
    std::memcpy(shared->letters(), text.data(), text.size() * sizeof(wchar_t));
    setWords({reinterpret_cast<uintptr_t>(shared), LONG << LENGTH_SHIFT});
}

CellText::CellText(const CellText& other) noexcept {
    setWords(other.words());
    if (isLong()) ++shared()->owners;
}

void CellText::release() {
    Shared* text = shared();
    if (--text->owners == 0) textMemory().giveBack(text, Shared::bytes(text->length));
}

std::wstring_view CellText::view() const {
    if (isLong()) return shared()->view();
    return {reinterpret_cast<const wchar_t*>(m_bytes), static_cast<size_t>(words()[1] >> LENGTH_SHIFT)};
}

bool CellText::operator==(const CellText& other) const {
    if (words() == other.words()) return true;
    return isLong() && other.isLong() && shared()->view() == other.shared()->view();
}
