// The entries of list boxes and combo boxes: those that waited in a record, those that Lisp adds to a live
// control, and the one that a value selects.
#pragma once

#include "src/dialog/CCtrlInfo.h"
#include "src/platform/mfc/CWnd.h"

// The rows stand before those that the control has already. An empty value selects the first row.
void applyListBox(const CWnd& listBox, const CCtrlInfo& tile);
// An empty value selects nothing, and a negative one clears the selection.
void applyComboBox(const CWnd& comboBox, const CCtrlInfo& tile);

void setListBoxValue(CWnd& listBox, const CString& value, bool byKey);
void setComboBoxValue(CWnd& comboBox, const CString& value, bool byKey);

void emptyListBox(CWnd& listBox, bool byKey);
void emptyComboBox(CWnd& comboBox, bool byKey);

// LIST_CHANGE puts the entry in the place of the selected one; any other operation appends it.
void addToListBox(CWnd& listBox, const wchar_t* entry, int operation);
void addToComboBox(CWnd& comboBox, const wchar_t* entry, int operation);
