// A double buffer: what is painted shows in one go, when the object goes.
#pragma once

#include "src/platform/mfc/Drawing.h"

// Coordinates are those of the target. On a printer it draws straight on the target.
class CMemDC : public CDC {
  public:
    CMemDC(const CDC& target, const RECT& rect)
        : CDC(nullptr),
          m_target(target),
          m_rect(rect),
          m_memDC(GetDeviceCaps(target, TECHNOLOGY) != DT_RASPRINTER) {
        m_hDC = m_memDC ? CreateCompatibleDC(target) : target.m_hDC;
        if (!m_memDC) return;
        m_bitmap.reset(CreateCompatibleBitmap(target, width(), height()));
        m_former = SelectObject(m_hDC, m_bitmap.get());
        SetWindowOrgEx(m_hDC, rect.left, rect.top, nullptr);
    }
    ~CMemDC() {
        if (!m_memDC) return;
        BitBlt(m_target, m_rect.left, m_rect.top, width(), height(), m_hDC, m_rect.left, m_rect.top, SRCCOPY);
        SelectObject(m_hDC, m_former);
        DeleteDC(m_hDC);
    }

  private:
    int width() const { return m_rect.right - m_rect.left; }
    int height() const { return m_rect.bottom - m_rect.top; }

    const CDC& m_target;
    RECT m_rect;
    UniqueBitmap m_bitmap;
    HGDIOBJ m_former = nullptr;  // the bitmap that was displaced
    bool m_memDC;                // it is a picture in memory
};
