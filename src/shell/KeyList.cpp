#include "src/shell/KeyList.h"

#include <algorithm>

#include "src/platform/base/KeyListText.h"

int KeyList::idForKey(std::wstring_view key) const {
    const std::wstring lower = toLower(key);
    if (lower == L"ok" || lower == L"accept") return OK_CONTROL_ID;
    if (lower == L"cancel") return CANCEL_CONTROL_ID;
    const auto found = std::find(m_keys.begin(), m_keys.end(), lower);
    return found == m_keys.end() ? -1 : FIRST_KEY_CONTROL_ID + static_cast<int>(found - m_keys.begin());
}

bool KeyList::hasId(int id) const {
    const int position = id - FIRST_KEY_CONTROL_ID;
    return id == OK_CONTROL_ID || id == CANCEL_CONTROL_ID ||
           (position >= 0 && position < static_cast<int>(m_keys.size()));
}

CString KeyList::keyForId(int id) const {
    const int position = id - FIRST_KEY_CONTROL_ID;
    if (position >= 0 && position < static_cast<int>(m_keys.size())) return m_keys[position];
    if (id == OK_CONTROL_ID) return L"ok";
    if (id == CANCEL_CONTROL_ID) return L"cancel";
    return L"control not found";
}
