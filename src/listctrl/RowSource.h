// The rows that a list control shows without having them: it asks for the cells that are in sight.
#pragma once

#include "src/platform/base/CString.h"

class RowSource {
  public:
    virtual ~RowSource() = default;

    // How many rows there are. May take its time.
    virtual int rowCount() = 0;
    // The text of a field of a row, both counted from 0; empty where the row has no such field.
    virtual CString field(int row, int field) = 0;
};

// The source of the dialog that shows one; null while there is none, and the list stays empty.
extern RowSource* g_rowSource;
