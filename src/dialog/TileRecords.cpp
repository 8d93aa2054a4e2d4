#include "src/dialog/TileRecords.h"

CCtrlInfo* TileRecords::forId(int id) {
    for (const auto& record : m_records)
        if (record->m_ctrlId == id) return record.get();
    return add(keys.keyForId(id), id);
}

CCtrlInfo* TileRecords::forKey(std::wstring_view key) {
    if (key.empty()) return nullptr;
    CString lower = toLower(key);
    if (lower == L"accept") lower = L"ok";
    for (const auto& record : m_records) {
        if (record->m_key == lower) return record.get();
        if (record->m_key.empty() && record->m_ctrlId >= 0 && keys.keyForId(record->m_ctrlId) == lower)
            return record.get();
    }
    return add(lower, keys.idForKey(lower));
}

CWnd* TileRecords::controlForId(int id) const {
    for (const auto& record : m_records)
        if (record->m_ctrlId == id && record->m_control) return record->m_control;
    return nullptr;
}

CCtrlInfo* TileRecords::forControl(const CWnd* control) const {
    if (!control) return nullptr;
    for (const auto& record : m_records)
        if (record->m_control == control) return record.get();
    return nullptr;
}

CCtrlInfo* TileRecords::add(CString key, int id) {
    auto record = std::make_unique<CCtrlInfo>();
    record->m_key = std::move(key);
    record->m_ctrlId = id;
    return m_records.emplace_back(std::move(record)).get();
}
