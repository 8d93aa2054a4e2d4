// The module of the data store, which lies beside the host's executable.
#pragma once

#include <cstdint>

#include "store/DataAccess.h"

// Loads a module of managed code. 0 on success, otherwise the system's error code. What a data store has to
// report goes to the host's console from then on.
int32_t loadManagedModule(const wchar_t* fileName);

// The store's access for the host, which loads the module at the first question. Throws lisp::Error where
// that fails.
DataAccess& dataAccess();
// The same where the module has been loaded; null before.
DataAccess* loadedDataAccess();

// Hears what failed for a record table, when it has been printed.
void setDataFailureListener(void (*listener)(HostText line));
