#include "src/tiles/WexComboBox.h"

IMPLEMENT_DYNAMIC(WexComboBox, CComboBox)
