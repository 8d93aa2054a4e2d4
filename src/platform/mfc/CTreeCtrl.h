// The platform's tree control. An image of -1 is no image: the control would ask its parent for it, and the
// class answers for a parent that doesn't. A text that is cut shows whole under a resting pointer.
#pragma once

#include "src/platform/mfc/CWnd.h"
#include "src/platform/mfc/CutTextTip.h"

class CTreeCtrl : public CWnd {
    DECLARE_DYNAMIC(CTreeCtrl)

  public:
    // The item at that point in client pixels, on any of its parts or beside it; null where there is none.
    HTREEITEM itemAt(POINT at) const;

  protected:
    LRESULT WindowProc(UINT message, WPARAM w, LPARAM l) override;
    const MessageMap& messageMap() const override;

  private:
    void onGetDispInfo(NMHDR* header);
    void onDeleteItem(NMHDR* header);

    CutTextTip m_tip;
};
