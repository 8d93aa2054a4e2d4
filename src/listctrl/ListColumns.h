// The columns of a list control.
#pragma once

#include "src/platform/mfc/CWnd.h"

// The window above the columns; null for a list without one.
const CWnd* headerOf(const CWnd& list);
int columnCount(const CWnd& list);
// Puts a left-aligned column at `index`; the width is in device pixels.
void insertColumn(const CWnd& list, int index, const CString& title, int width);
// The columns of a column text, for a list that has none yet: columns are never replaced.
void applyColumnText(const CWnd& list, const CString& text);
// False where there is no such column. At most 255 characters are taken.
bool renameColumn(const CWnd& list, int column, const CString& title);
