// The module's entries.
#include <windows.h>

#include "store/DataStore.h"
#include "store/OdbcDatabase.h"

namespace {

std::unique_ptr<Database> openOdbc(std::wstring_view connectString) {
    return std::make_unique<OdbcDatabase>(connectString);
}

// Never destroyed: when the process ends, drivers may be gone before this module is.
OpenDatabase& openDatabase() {
    static OpenDatabase& database = *new OpenDatabase(&openOdbc);
    return database;
}

// A query runs on the thread that works the dialog.
class WaitCursor {
  public:
    WaitCursor() : m_before(SetCursor(LoadCursor(nullptr, IDC_WAIT))) {}
    ~WaitCursor() { SetCursor(m_before); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

  private:
    HCURSOR m_before;
};

class PatientStore : public DataStore {
  public:
    using DataStore::DataStore;

    int32_t GetRowCount(HostText bracketedTable) override {
        const WaitCursor working;
        return DataStore::GetRowCount(bracketedTable);
    }
    void RunQuery(HostText sql, HostRecordArray* records) override {
        const WaitCursor working;
        DataStore::RunQuery(sql, records);
    }
};

class Services : public HostDataStoreServices {
  public:
    void notCalled() override {}
    HostDataStore* GetStore() override { return &m_store; }

  private:
    PatientStore m_store{openDatabase()};
};

}  // namespace

extern "C" __declspec(dllexport) HostDataStoreServices* wexmgdDataStoreServices() {
    static Services& services = *new Services;
    return &services;
}

extern "C" __declspec(dllexport) DataAccess* wexmgdDataAccess() { return &openDatabase(); }
