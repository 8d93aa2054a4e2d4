// In place of what the dialog gives to all wrappers.
#include "src/dialog/TileControl.h"

void TileControl::attach(WexDialog&, CDataExchange&, int) {}
void TileControl::applyRecord(CCtrlInfo&) {}
