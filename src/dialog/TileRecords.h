// The records of a dialog's tiles, made on demand by key or by control id. Portable.
#pragma once

#include <memory>
#include <vector>

#include "src/dialog/CCtrlInfo.h"
#include "src/shell/KeyList.h"

// Searches go from the oldest record on, so the oldest of several wins. Records may be added while the list
// is being walked: walk by index and read the size anew.
class TileRecords {
  public:
    KeyList keys;

    // The record of that control id, made if there is none. Never null.
    CCtrlInfo* forId(int id);
    // The record of that key, made if there is none; null for an empty key. "accept" is "ok".
    CCtrlInfo* forKey(std::wstring_view key);
    // A new record, whether there is one or not.
    CCtrlInfo* add(CString key, int id);
    // The control of a record with that id; null where none has one.
    CWnd* controlForId(int id) const;
    // The record whose control is that object; null where there is none.
    CCtrlInfo* forControl(const CWnd* control) const;

    size_t size() const { return m_records.size(); }
    CCtrlInfo* at(size_t index) const { return m_records[index].get(); }

  private:
    std::vector<std::unique_ptr<CCtrlInfo>> m_records;
};
