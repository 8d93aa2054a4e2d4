// Writing a file of one's own. Portable.
#pragma once

#include "src/platform/base/CFile.h"
#include "src/platform/base/CString.h"

// What `write` puts into a new file; 1, or 0 where that fails, and then no half a file is left.
template <class Write>
int saveFile(const CString& path, CFile::Sharing sharing, Write write) {
    CFile file;
    if (!file.Open(path, CFile::Access::Create, sharing)) return 0;
    write(file);
    if (file.Close()) return 1;
    CFile::Remove(path);
    return 0;
}
