// The bridge between a dialog's tile keys and the control ids of its template. Portable.
#pragma once

#include <string_view>

#include "src/platform/base/CString.h"

// The keys of one dialog, lower case, by position. The key at position i belongs to control id 110 + i, but
// for "OK" and "Cancel", which are the standard ids wherever they stand.
class KeyList {
  public:
    KeyList() = default;
    explicit KeyList(CStringArray keys) : m_keys(std::move(keys)) {}

    // 1 for "OK" and "accept", 2 for "Cancel", otherwise 110 plus the position of the first such key, in any
    // case; -1 where there is none.
    int idForKey(std::wstring_view key) const;

    // The key of a control id, lower case; "control not found" where the list has none.
    CString keyForId(int id) const;

    // Whether the id is that of OK, of Cancel, or of a position.
    bool hasId(int id) const;

    const CStringArray& keys() const { return m_keys; }

  private:
    CStringArray m_keys;
};
