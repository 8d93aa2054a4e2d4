#include "src/records/RecordSource.h"

#include <algorithm>

#include "src/records/WexRecordTable.h"

RecordSource g_recordSource;

int RecordSource::rowCount() { return g_recordTable ? std::max(g_recordTable->Count(), 0) : 0; }

CString RecordSource::field(int row, int field) {
    const Record* record = g_recordTable ? g_recordTable->At(row) : nullptr;
    return record ? record->field(field) : std::wstring_view();
}

int RecordSource::find(const CString& text, bool whole, int from, int end) {
    if (!g_recordTable) return -1;
    for (int row = from; row < end; ++row) {
        const Record* record = g_recordTable->peek(row);
        std::wstring_view name = record ? record->field(0) : std::wstring_view();
        if (!whole) name = name.substr(0, text.size());
        if (equalIgnoringCase(name, text)) return row;
    }
    return -1;
}
