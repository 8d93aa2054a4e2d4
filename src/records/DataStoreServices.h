// The way to the data store: a module that the host loads when a record table is first made.
#pragma once

#include "src/platform/host/HostDataStore.h"

// The services of the data store, asked for once and never released; null until they were found.
extern HostDataStoreServices* g_dataStoreServices;

// Loads the module where that hasn't happened. Null where it can't be loaded, which the host's command line
// has been told, or where it has no services; the next call then tries again.
HostDataStoreServices* dataStoreServices();

// The store for one more record table; null without services or where they have none.
HostDataStore* newDataStore();
