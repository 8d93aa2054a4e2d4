// The platform's standard controls as window classes, each with a run-time class of its own.
#pragma once

#include "src/platform/mfc/CWnd.h"

class CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

  public:
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
};

class CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
};

class CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
};

class CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
};

class CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
};

class CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)

  public:
    bool getItem(LVITEMW& item) const { return sendItem(LVM_GETITEMW, item); }
    bool setItem(const LVITEMW& item) const { return sendItem(LVM_SETITEMW, item); }

  private:
    bool sendItem(UINT message, const LVITEMW& item) const {
        return sendStraight(message, 0, reinterpret_cast<LPARAM>(&item));
    }
};

class CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)
};

class CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)

  public:
    void GetScrollRange(int& minimum, int& maximum) const {
        ::GetScrollRange(m_hWnd, SB_CTL, &minimum, &maximum);
    }
    void SetScrollRange(int minimum, int maximum) const {
        ::SetScrollRange(m_hWnd, SB_CTL, minimum, maximum, TRUE);
    }
    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    // The platform keeps it in the range.
    void SetScrollPos(int position) const { ::SetScrollPos(m_hWnd, SB_CTL, position, TRUE); }
    // The largest position that a bar without a page size can have.
    int GetScrollLimit() const {
        int minimum = 0, maximum = 0;
        GetScrollRange(minimum, maximum);
        return maximum;
    }
};
