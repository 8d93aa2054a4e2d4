// In place of what the dialog gives to all wrappers.
#include "src/dialog/TileControl.h"

void TileControl::attach(WexDialog&, HWND) {}
void TileControl::applyRecord(CCtrlInfo&) {}
