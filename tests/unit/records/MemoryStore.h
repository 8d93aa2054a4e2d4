// A store that answers from memory.
#pragma once

#include <string>
#include <vector>

#include "src/platform/host/HostDataStore.h"
#include "src/records/Record.h"

using Fields = std::vector<std::wstring>;

inline Record recordOf(const Fields& fields) {
    return {fields.size(), [&](size_t at) { return std::wstring_view(fields[at]); }};
}

inline Fields fieldsOf(const Record& record) {
    Fields fields;
    for (size_t at = 0; at < record.size(); ++at) fields.emplace_back(record.field(at));
    return fields;
}

class MemoryStore : public HostDataStore {
  public:
    int32_t count;
    std::vector<Fields> rows;

    // Rows "0", "1" and so on, of one field.
    explicit MemoryStore(int rowCount) : count(rowCount) {
        for (int row = 0; row < rowCount; ++row) rows.push_back({std::to_wstring(row)});
    }

    void notCalled() override {}
    bool CanRunWithoutDatabase() override { return true; }
    int32_t GetRowCount(HostText) override { return count; }
    void RunQuery(HostText, HostRecordArray* records) override {
        records->reserve(rows.size());
        for (const Fields& row : rows) {
            std::vector<HostText> texts;
            for (const std::wstring& text : row) texts.push_back({text.data(), text.size()});
            records->add(texts.data(), texts.size());
        }
    }
};
