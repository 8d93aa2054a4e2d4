// A data store for tests that answers from memory, and the plug-in that tells it what. Loaded as a plug-in
// before the first record table is made, it is the module that is found under the store's name.
//
//     (store_rows rows [count])    the rows, lists of strings, and how many it says there are
//     (store_numbered n)           n rows of five fields, the first of them "P0", "P1" and so on
//     (store_refuse [what])        "database": a setup needs one; "store": there is none
//     (store_log)                  what was asked since the last call
#include <windows.h>

#include <string>
#include <vector>

#include "src/platform/host/HostDataStore.h"
#include "src/platform/host/HostServices.h"
#include "tests/support/LispTable.h"

namespace {

using Fields = std::vector<std::wstring>;

std::vector<Fields> g_rows;
int g_numbered = 0;  // rows that are made when they are asked for
int g_count = 0;
std::wstring g_refused;
std::vector<std::wstring> g_log;

void addTo(HostRecordArray& records, const Fields& fields) {
    std::vector<HostText> texts;
    for (const std::wstring& field : fields) texts.push_back({field.c_str(), field.size()});
    records.add(texts.data(), texts.size());
}

class TestStore : public HostDataStore {
  public:
    void notCalled() override { g_log.push_back(L"not to be called"); }
    bool CanRunWithoutDatabase() override {
        g_log.push_back(L"needs database?");
        return g_refused != L"database";
    }
    int32_t GetRowCount(HostText table) override {
        g_log.push_back(L"count " + std::wstring(table.text, table.length));
        return g_count;
    }
    void RunQuery(HostText sql, HostRecordArray* records) override {
        g_log.emplace_back(sql.text, sql.length);
        records->reserve(g_rows.size() + g_numbered);
        for (const Fields& row : g_rows) addTo(*records, row);
        for (int n = 0; n < g_numbered; ++n) {
            const std::wstring number = std::to_wstring(n);
            addTo(*records, {L"P" + number, L"not shown", L"Part " + number, std::to_wstring(n % 7), L""});
        }
    }
};

class TestServices : public HostDataStoreServices {
  public:
    void notCalled() override { g_log.push_back(L"not to be called"); }
    HostDataStore* GetStore() override {
        static TestStore store;
        g_log.push_back(L"store");
        return g_refused == L"store" ? nullptr : &store;
    }
};

void setRows(const HostValue* at) {
    g_numbered = 0;
    g_rows.clear();
    int depth = 0;
    for (; at && (depth > 0 || at->type == HV_LIST_BEGIN || at->type == HV_NIL); at = at->next) {
        const bool isEmptyRow = at->type == HV_NIL && depth == 1;
        if ((at->type == HV_LIST_BEGIN && ++depth == 2) || isEmptyRow) g_rows.emplace_back();
        if (at->type == HV_LIST_END) --depth;
        if (at->type == HV_STRING) g_rows.back().emplace_back(at->value.stringValue);
    }
    g_count = at ? at->value.shortValue : static_cast<int>(g_rows.size());
}

void rows() { setRows(hostGetArgs()); }

void numbered() {
    const HostValue* count = hostGetArgs();
    g_rows.clear();
    g_count = g_numbered = count->type == HV_LONG ? count->value.longValue : count->value.shortValue;
}

void refuse() {
    const HostValue* what = hostGetArgs();
    g_refused = what ? what->value.stringValue : L"";
}

void log() {
    HostValue* chain = nullptr;
    for (size_t at = g_log.size(); at-- > 0;) {
        HostValue* node = hostBuildList(HV_STRING, g_log[at].c_str(), 0);
        node->next = chain;
        chain = node;
    }
    hostRetList(chain);
    hostRelRb(chain);
    g_log.clear();
}

constexpr LispRow ROWS[] = {{L"store_rows", &entry<rows>},
                            {L"store_numbered", &entry<numbered>},
                            {L"store_refuse", &entry<refuse>},
                            {L"store_log", &entry<log>}};

}  // namespace

extern "C" {

__declspec(dllexport) HostDataStoreServices* wexmgdDataStoreServices() {
    static TestServices services;
    g_log.push_back(L"services");
    return &services;
}

__declspec(dllexport) int32_t pluginEntryPoint(int32_t message, void*) {
    serve(ROWS, message);
    return 0;
}

__declspec(dllexport) uint32_t pluginGetApiVersion() { return HOST_API_VERSION; }
}
