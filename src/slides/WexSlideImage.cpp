#include "src/slides/WexSlideImage.h"

#include "src/dialog/WexDialog.h"

void WexSlideImage::attach(WexDialog& dialog, HWND control) {
    FromHandle(control)->ModifyStyleEx(SLIDE_EX_STYLE, 0);
    TileControl::attach(dialog, control);
}

void WexSlideImage::discovered(WexDialog&, CCtrlInfo& tile) { m_tile = &tile; }
