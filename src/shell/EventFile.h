// A dialog's event file: Lisp text gathered in memory, loaded by the host's Lisp just before the dialog runs.
#pragma once

#include "src/platform/base/CString.h"

// The path of the event file of a dialog name, as the program spelt it.
// Throws CFileException where the system has no temporary folder.
CString eventFilePath(const CString& dialogName);

// Each adds to the text of that dialog name's file. Without a temporary folder the text is dropped.
void beginEventFile(const CString& dialogName);
void addAction(const CString& dialogName, const CString& suffix, const CString& lispText);

// Writes the gathered text, has the host's Lisp load it with c:wex_loadlisp, and deletes the file.
// False where the file could not be written: the text is then kept for another try.
// Without a temporary folder nothing is written, and that is no failure.
bool loadEventFile(const CString& dialogName);
