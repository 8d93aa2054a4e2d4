// The store that the plug-in's record tables read. Portable.
#pragma once

#include "store/OpenDatabase.h"

class DataStore : public HostDataStore {
  public:
    explicit DataStore(OpenDatabase& database) : m_database(database) {}

    void notCalled() override {}
    bool CanRunWithoutDatabase() override { return m_database.isOpen(); }
    int32_t GetRowCount(HostText bracketedTable) override;
    void RunQuery(HostText sql, HostRecordArray* records) override;

  private:
    OpenDatabase& m_database;
    // A query comes behind its count.
    int32_t m_lastCount = 0;
    bool m_isTooLarge = false;  // for a count of 32 bits
};
