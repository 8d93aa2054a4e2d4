// The columns of a list control.
#pragma once

#include "src/platform/mfc/CWnd.h"

// Puts a left-aligned column at `index`; the width is in device pixels.
void insertColumn(const CWnd& list, int index, const CString& title, int width);
// The cells behind it move up. False for a column that isn't there.
bool deleteColumn(const CWnd& list, int column);
// The columns of a column text, for a list that has none yet: columns are never replaced.
void applyColumnText(const CWnd& list, const CString& text);
// Each column as wide as its widest cell or its title.
void fitColumns(const CWnd& list);
// At most 255 characters are taken. False for a column that isn't there.
bool renameColumn(const CWnd& list, int column, const CString& title);
