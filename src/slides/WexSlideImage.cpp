#include "src/slides/WexSlideImage.h"

#include "src/dialog/WexDialog.h"

void WexSlideImage::attach(WexDialog& dialog, CDataExchange& exchange, int id) {
    dialog.GetDlgItem(id)->ModifyStyleEx(SLIDE_EX_STYLE, 0);
    TileControl::attach(dialog, exchange, id);
}

void WexSlideImage::discovered(WexDialog&, CCtrlInfo& tile) { m_tile = &tile; }
