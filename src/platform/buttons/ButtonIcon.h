// The picture of an image button, whole and greyed.
#pragma once

#include <cstdint>
#include <span>

#include "src/platform/buttons/ButtonLook.h"
#include "src/platform/mfc/Drawing.h"

// Turns pixels (0xAARRGGBB, not premultiplied) into what a disabled picture shows: grey, and half as strong.
void greyPixels(std::span<uint32_t> pixels);

class ButtonIcon {
  public:
    ButtonIcon() = default;
    // Takes the icon over; null is no picture.
    explicit ButtonIcon(HICON icon);

    ButtonSize size() const { return m_size; }
    void draw(HDC dc, int x, int y, bool disabled) const;

  private:
    HICON greyed() const;

    UniqueIcon m_icon;
    mutable UniqueIcon m_greyed;
    ButtonSize m_size;
};
