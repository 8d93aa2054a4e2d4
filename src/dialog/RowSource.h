// The rows that a list control shows without having them: it asks for the cells that are in sight.
#pragma once

#include "src/platform/base/CString.h"

class RowSource {
  public:
    virtual ~RowSource() = default;

    // How many rows there are. May take its time.
    virtual int rowCount() = 0;
    // The text of a field of a row, both counted from 0; empty where the row has no such field. A row that
    // isn't there may be an exception, which then ends the dialog.
    virtual CString field(int row, int field) = 0;
    // The first row from `from` up to, but without, `end` whose first field begins with the text, or is it,
    // where `whole`; letter case doesn't count. -1 for none.
    virtual int find(const CString& text, bool whole, int from, int end) = 0;
};

// The source of the dialog that shows one; null while there is none, and the list stays empty. A list that
// shows it goes on asking it, so it is never deleted.
inline RowSource* g_rowSource = nullptr;
