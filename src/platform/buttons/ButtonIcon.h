// The picture of an image button or a menu item: whole or greyed, and on dark grounds with its lightness
// turned around, since icons are drawn for light ones.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "src/platform/buttons/ButtonLook.h"
#include "src/platform/mfc/Drawing.h"

// Turn pixels (0xAARRGGBB, not premultiplied) into what a disabled picture shows: grey, and half as strong;
// and into what is seen on a dark ground: light for dark and dark for light, in the same hues.
void greyPixels(std::span<uint32_t> pixels);
void turnLightness(std::span<uint32_t> pixels);

class ButtonIcon {
  public:
    ButtonIcon() = default;
    // Takes the icon over; null is no picture.
    explicit ButtonIcon(HICON icon);

    ButtonSize size() const { return m_size; }
    // On what `dc` shows there already.
    void draw(HDC dc, int x, int y, bool disabled) const;

  private:
    HICON look(bool disabled, bool onDark) const;

    UniqueIcon m_icon;
    // By what look() is asked for, as it is first asked for; the plain one is m_icon.
    mutable std::array<UniqueIcon, 4> m_copies;
    ButtonSize m_size;
};
