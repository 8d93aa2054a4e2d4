// The Lisp functions of the record table. There is one table, which all dialogs share.
//
// A record number counts from 0. Where it names no record, an exception leaves the function, and Lisp sees
// the error "Index Out of Range.". Functions "without a result" set none: Lisp sees no value.
#pragma once

#include "src/shell/LispCall.h"

// (wex_fp_setupdatasrc [(database table order-column)]) -> no value.
// Makes the table and reads its records in the order of that column. Nothing happens where there is a table,
// or where the data store can't be loaded.
void recordsSetUp(LispCall& call);

// (wex_fp_cleardatasrc) -> no value. The table goes, with all changes; lists that show it are empty then.
void recordsClear(LispCall& call);

// (wex_fp_getcount) -> the number of records; 0 without a table.
void recordsGetCount(LispCall& call);

// (wex_fp_getitem number) -> a list of the record's texts; no value without a table or a number, and for -1.
void recordsGetItem(LispCall& call);

// (wex_fp_setitem number texts) -> without a result; no value without a number, and for -1.
// Fields beyond the texts stay, texts beyond the fields are dropped.
void recordsSetItem(LispCall& call);

// (wex_fp_additem texts) -> without a result; no value without an argument.
// The record has five fields; those without a text are empty.
void recordsAddItem(LispCall& call);

// (wex_fp_remitem number) -> without a result; no value without a number, and for -1.
void recordsRemoveItem(LispCall& call);

// (wex_fp_getadded), (wex_fp_getmodified), (wex_fp_getdeleted) -> the records that were added, changed (as
// they are now) and removed (as they were), each a list of texts; no value without a table.
void recordsGetAdded(LispCall& call);
void recordsGetModified(LispCall& call);
void recordsGetDeleted(LispCall& call);

// (wex_fp_savedb) -> without a result; no value without a table. Forgets what was changed; writes nothing.
void recordsForgetChanges(LispCall& call);
