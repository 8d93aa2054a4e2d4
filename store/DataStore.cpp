#include "store/DataStore.h"

#include <cwchar>
#include <limits>
#include <new>
#include <vector>

#include "store/ValueText.h"

namespace {

class OneNumber : public DataRows {
  public:
    bool add(const DataValue* fields, size_t count) override {
        std::wstring digits;
        if (count > 0) appendText(digits, fields[0]);
        m_number = std::wcstoll(digits.c_str(), nullptr, 10);
        return false;
    }
    int64_t number() const { return m_number; }

  private:
    int64_t m_number = 0;
};

class RecordRows : public DataRows {
  public:
    explicit RecordRows(HostRecordArray& records) : m_records(records) {}

    bool add(const DataValue* fields, size_t count) override {
        m_written.clear();
        m_texts.resize(count);
        for (size_t i = 0; i < count; ++i) {
            // What is text already needs no copy; a number's place is known when all are written.
            if (fields[i].kind == DataKind::text) continue;
            appendText(m_written, fields[i]);
            m_texts[i].length = m_written.size();
        }
        size_t from = 0;
        for (size_t i = 0; i < count; ++i) {
            if (fields[i].kind == DataKind::text) {
                m_texts[i] = fields[i].text;
            } else {
                const size_t end = m_texts[i].length;
                m_texts[i] = {m_written.data() + from, end - from};
                from = end;
            }
        }
        if (!m_records.add(m_texts.data(), count)) throw std::bad_alloc();
        return true;
    }

  private:
    HostRecordArray& m_records;
    std::wstring m_written;
    std::vector<HostText> m_texts;
};

}  // namespace

int32_t DataStore::GetRowCount(HostText bracketedTable) {
    const std::wstring sql = L"SELECT COUNT(*) FROM " + std::wstring(view(bracketedTable));
    OneNumber rows;
    if (!m_database.query(lent(sql), nullptr, 0, &rows)) m_database.report(sql);
    m_isTooLarge = rows.number() > std::numeric_limits<int32_t>::max();
    if (m_isTooLarge)
        m_database.report(std::to_wstring(rows.number()) + L" rows are more than can be read", sql);
    m_lastCount = m_isTooLarge ? 0 : static_cast<int32_t>(rows.number());
    return m_lastCount;
}

void DataStore::RunQuery(HostText sql, HostRecordArray* records) {
    if (m_isTooLarge) return;
    RecordRows rows(*records);
    records->reserve(static_cast<size_t>(m_lastCount));
    if (!m_database.query(sql, nullptr, 0, &rows)) m_database.report(view(sql));
}
