#include "src/platform/gridlib/CellText.h"

#include <cstring>
#include <new>

// The letters follow it in the same piece of memory.
struct CellText::Shared {
    size_t owners;
    size_t length;

    wchar_t* letters() { return reinterpret_cast<wchar_t*>(this + 1); }
    std::wstring_view view() { return {letters(), length}; }
};

CellText::Shared* CellText::shared() const {
    Shared* shared;
    std::memcpy(&shared, m_bytes, sizeof shared);
    return shared;
}

CellText::CellText(std::wstring_view text) {
    if (text.size() <= SHORT_LENGTH) {
        if (!text.empty()) std::memcpy(m_bytes, text.data(), text.size() * sizeof(wchar_t));
        m_bytes[LENGTH_AT] = static_cast<std::byte>(text.size());
        return;
    }
    void* memory = ::operator new(sizeof(Shared) + text.size() * sizeof(wchar_t));
    auto* shared = new (memory) Shared{1, text.size()};
    std::memcpy(shared->letters(), text.data(), text.size() * sizeof(wchar_t));
    std::memcpy(m_bytes, &shared, sizeof shared);
    m_bytes[LENGTH_AT] = LONG;
}

CellText::CellText(const CellText& other) noexcept {
    std::memcpy(m_bytes, other.m_bytes, sizeof m_bytes);
    if (isLong()) ++shared()->owners;
}

void CellText::release() {
    if (--shared()->owners == 0) ::operator delete(shared());
}

std::wstring_view CellText::view() const {
    if (isLong()) return shared()->view();
    return {reinterpret_cast<const wchar_t*>(m_bytes), static_cast<size_t>(m_bytes[LENGTH_AT])};
}

bool CellText::operator==(const CellText& other) const {
    if (std::memcmp(m_bytes, other.m_bytes, sizeof m_bytes) == 0) return true;
    return isLong() && other.isLong() && shared()->view() == other.shared()->view();
}
