// A list of pictures of one size, which controls show by their numbers. It must outlive its use by a control.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <utility>

class CImageList {
  public:
    CImageList() = default;
    CImageList(CImageList&& other) noexcept : m_hImageList(std::exchange(other.m_hImageList, nullptr)) {}
    CImageList& operator=(CImageList&& other) noexcept {
        std::swap(m_hImageList, other.m_hImageList);
        return *this;
    }
    ~CImageList() {
        if (m_hImageList) ImageList_Destroy(m_hImageList);
    }

    // An empty list of pictures of that size in pixels, with ILC_ flags and room for `initial` of them. False
    // where the object has a list already, or none can be made.
    bool Create(int width, int height, UINT flags, int initial, int growth) {
        if (m_hImageList) return false;
        m_hImageList = ImageList_Create(width, height, flags, initial, growth);
        return m_hImageList != nullptr;
    }
    // Adds a copy of the icon. Its number, or -1 where it can't be added, as for null.
    int Add(HICON icon) const { return ImageList_ReplaceIcon(m_hImageList, -1, icon); }

    HIMAGELIST m_hImageList = nullptr;
};
