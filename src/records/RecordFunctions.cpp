#include "src/records/RecordFunctions.h"

#include "src/records/DataStoreServices.h"
#include "src/records/RecordSource.h"
#include "src/records/ResultChain.h"
#include "src/records/WexRecordTable.h"

namespace {

// kept: of every record that is added, whatever the table's columns.
constexpr size_t FIELDS_OF_ADDED = 5;
// Database, table, order column.
constexpr size_t NAMES_OF_TABLE = 3;

// kept: -1 stands for no number, where any other bad one is an error.
std::optional<int> recordNumber(LispCall& call) {
    const std::optional<int> number = call.shortOrLong();
    if (number == -1) call.warnOfArgument([] { return CString(L"-1 is no number of a record"); });
    return number == -1 ? std::nullopt : number;
}

// Whether there is a table to work on.
bool hasTable() {
    if (!g_recordTable) [[unlikely]]
        warn(WARN_NOT_NOW, L"no table is set up: wex_fp_setupdatasrc sets one up");
    return g_recordTable != nullptr;
}

void warnOfTooMany(const std::vector<CString>& texts, size_t most) {
    if (texts.size() > most) [[unlikely]]
        warn(WARN_UNUSED_ARGUMENT, [&] {
            return L"of " + std::to_wstring(texts.size()) + L" texts it takes " + std::to_wstring(most);
        });
}

std::wstring_view textAt(const std::vector<CString>& texts, size_t at) {
    return at < texts.size() ? std::wstring_view(texts[at]) : std::wstring_view();
}

template <class Records, class RecordOf>
void retRecords(LispCall& call, const Records& records, RecordOf recordOf) {
    ResultChain chain;
    for (const auto& entry : records) chain.appendRecord(recordOf(entry));
    call.retList(chain.get());
}

void retTracked(LispCall& call, TrackedRecords WexRecordTable::*records) {
    if (!hasTable()) return call.retVoid();
    retRecords(call, (*g_recordTable).*records, [](const auto& entry) { return entry.second; });
}

}  // namespace

void recordsSetUp(LispCall& call) {
    call.retVoid();
    if (g_recordTable) return warn(WARN_NOT_NOW, L"a table is set up already: wex_fp_cleardatasrc ends it");
    HostDataStore* store = newDataStore();
    if (!store) return warn(WARN_DATABASE, L"the data store isn't there: no table is set up");
    g_recordTable = std::make_unique<WexRecordTable>(*store);
    g_rowSource = &g_recordSource;
    if (!call.hasArguments()) return call.warnMissing();
    const std::vector<CString> names = call.listTexts();
    if (names.size() < 2 || names[1].IsEmpty())
        warn(WARN_NO_EFFECT, L"no table is named: the list is to be (database table order-column)");
    warnOfTooMany(names, NAMES_OF_TABLE);
    g_recordTable->setUp(textAt(names, 0), textAt(names, 1), textAt(names, 2));
    // The table takes the names where the store doesn't refuse.
    if (g_recordTable->m_table.IsEmpty() && !textAt(names, 1).empty())
        warn(WARN_DATABASE, L"the data store needs a database, and none is named");
}

void recordsClear(LispCall& call) {
    g_rowSource = nullptr;
    g_recordTable.reset();
    call.retVoid();
}

void recordsGetCount(LispCall& call) { call.retLong(hasTable() ? g_recordTable->Count() : 0); }

void recordsGetItem(LispCall& call) {
    const std::optional<int> number = recordNumber(call);
    if (!number || !hasTable()) return call.retVoid();
    const Record* record = g_recordTable->At(*number);
    ResultChain fields;
    if (record) fields.appendFields(*record);
    call.retList(fields.get());
}

void recordsSetItem(LispCall& call) {
    const std::optional<int> number = recordNumber(call);
    if (!number) return call.retVoid();
    call.retNone();
    const std::vector<CString> texts = call.listTexts();
    if (!hasTable() || call.lacksArgument()) return;
    const Record* before = g_recordTable->At(*number);
    if (!before) throw WexIndexError();
    warnOfTooMany(texts, before->size());
    const Record after(before->size(), [&](size_t at) {
        return at < texts.size() ? std::wstring_view(texts[at]) : before->field(at);
    });
    g_recordTable->Update(*number, after);
}

void recordsAddItem(LispCall& call) {
    if (!call.hasArguments()) {
        call.warnMissing();
        return call.retVoid();
    }
    call.retNone();
    if (!hasTable()) return;
    const std::vector<CString> texts = call.listTexts();
    warnOfTooMany(texts, FIELDS_OF_ADDED);
    g_recordTable->Add({FIELDS_OF_ADDED, [&](size_t at) { return textAt(texts, at); }});
}

void recordsRemoveItem(LispCall& call) {
    const std::optional<int> number = recordNumber(call);
    if (!number) return call.retVoid();
    call.retNone();
    if (hasTable()) g_recordTable->Remove(*number);
}

void recordsGetAdded(LispCall& call) { retTracked(call, &WexRecordTable::m_added); }

void recordsGetModified(LispCall& call) { retTracked(call, &WexRecordTable::m_modified); }

void recordsGetDeleted(LispCall& call) {
    if (!hasTable()) return call.retVoid();
    retRecords(call, g_recordTable->m_deleted, [](const Record& record) { return record; });
}

void recordsForgetChanges(LispCall& call) {
    if (!hasTable()) return call.retVoid();
    g_recordTable->forgetChanges();
    call.retNone();
}
