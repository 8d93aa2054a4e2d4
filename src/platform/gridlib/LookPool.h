// The looks of a table's cells. Equal looks are one, so that a cell needs four bytes for its look. Portable.
#pragma once

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

#include "src/platform/gridlib/CellLook.h"

class LookPool {
  public:
    // The number of a look; NONE is that of no attributes at all, which needs no holding.
    using Id = uint32_t;
    static constexpr Id NONE = 0;

    LookPool();

    const CellLook& operator[](Id id) const { return m_entries[id].look; }

    // The id of that look, held once more by the caller.
    Id hold(const CellLook& look);
    // The id of look `base` with the attributes of `over` on it, held once more by the caller. The same two
    // asked for again cost a comparison.
    Id holdApplied(Id base, const CellLook& over);
    // The caller no longer needs it; what nobody holds is forgotten.
    void release(Id id);

  private:
    struct Entry {
        CellLook look;
        size_t holders = 0;
    };
    struct Hash {
        size_t operator()(const CellLook& look) const { return look.hash(); }
    };

    std::vector<Entry> m_entries;
    std::vector<Id> m_free;
    std::unordered_map<CellLook, Id, Hash> m_ids;
    // The last question to holdApplied and its answer, as long as nothing was forgotten.
    bool m_hasLast = false;
    Id m_lastBase = NONE, m_lastResult = NONE;
    CellLook m_lastOver;
};
