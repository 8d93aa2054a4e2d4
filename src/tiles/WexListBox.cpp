#include "src/tiles/WexListBox.h"

IMPLEMENT_DYNAMIC(WexListBox, CListBox)
