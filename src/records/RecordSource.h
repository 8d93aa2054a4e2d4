// The record table as the rows of a list control.
#pragma once

#include "src/dialog/RowSource.h"

// Asks the table of the moment: a list that shows it stays empty while there is none, and shows the next one.
class RecordSource : public RowSource {
  public:
    int rowCount() override;
    // A row beyond the table's count is a WexIndexError; one that the ragged pages lack has empty fields.
    CString field(int row, int field) override;
    // Loads no pages: looking for a record changes no record's number.
    int find(const CString& text, bool whole, int from, int end) override;
};

extern RecordSource g_recordSource;
