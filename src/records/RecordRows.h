// The rows of a query, as a store hands them over. Portable.
#pragma once

#include <vector>

#include "src/platform/host/HostDataStore.h"
#include "src/records/Record.h"

class RecordRows : public HostRecordArray {
  public:
    const std::vector<Record>& rows() const { return m_rows; }

    void reserve(size_t records) override;
    bool add(const HostText* fields, size_t count) override;

  private:
    std::vector<Record> m_rows;
};
