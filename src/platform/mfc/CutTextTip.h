// Shows the whole text of a tree's item in place when the pointer rests on it and the tree is too narrow.
//
// Windows does that by itself. Wine's tree makes the tip's window and leaves it at that.
#pragma once

#include "src/platform/mfc/CWnd.h"

class CutTextTip {
  public:
    // To be told of each message of the tree, before the tree handles it.
    void see(const CWnd& tree, UINT message, LPARAM l);

  private:
    void waitForRest(const CWnd& tree) const;
    void show(const CWnd& tree, POINT at);
    void hide(const CWnd& tree);

    HTREEITEM m_shown = nullptr;
};
