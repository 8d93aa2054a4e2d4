// In place of what the dialog gives to all wrappers.
#include "src/dialog/EntrySelection.h"
#include "src/dialog/TileControl.h"

void TileControl::attach(WexDialog&, HWND) {}
void TileControl::applyRecord(CCtrlInfo&) {}

void warnNoEntry(const CWnd&, const CString&, Entries) {}
void warnUnlessNumber(const CString&) {}
