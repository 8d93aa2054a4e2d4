#include "src/platform/buttons/ButtonIcon.h"

#include <algorithm>
#include <vector>

namespace {

// The bitmaps of an icon, given back at the end.
struct IconBitmaps {
    explicit IconBitmaps(HICON icon) {
        ICONINFO info = {};
        if (!GetIconInfo(icon, &info)) return;
        colour.reset(info.hbmColor);
        mask.reset(info.hbmMask);
    }

    UniqueBitmap colour;
    UniqueBitmap mask;
};

ButtonSize sizeOf(const IconBitmaps& bitmaps) {
    BITMAP bitmap = {};
    GetObjectW(bitmaps.colour.get(), sizeof bitmap, &bitmap);
    return {bitmap.bmWidth, bitmap.bmHeight};
}

std::vector<uint32_t> readPixels(HDC dc, HBITMAP bitmap, BITMAPINFO& info) {
    const auto count = static_cast<size_t>(info.bmiHeader.biWidth) * std::abs(info.bmiHeader.biHeight);
    std::vector<uint32_t> pixels(count);
    GetDIBits(dc, bitmap, 0, std::abs(info.bmiHeader.biHeight), pixels.data(), &info, DIB_RGB_COLORS);
    return pixels;
}

// Pixels of a picture without transparency of its own get it from the mask, in which white lets through.
void takeMask(std::vector<uint32_t>& pixels, const std::vector<uint32_t>& mask) {
    if (std::any_of(pixels.begin(), pixels.end(), [](uint32_t pixel) { return pixel >> 24; })) return;
    for (size_t at = 0; at < pixels.size(); ++at)
        if (!(mask[at] & 0xFFFFFF)) pixels[at] |= 0xFF000000;
}

uint32_t luma(uint32_t red, uint32_t green, uint32_t blue) {
    // By ITU-R BT.601.
    return (red * 299 + green * 587 + blue * 114) / 1000;
}

// Half as light is what themes show under the pointer and pressed; icons are seen there as they are.
bool isDark(COLORREF color) {
    return color != CLR_INVALID && luma(GetRValue(color), GetGValue(color), GetBValue(color)) < 85;
}

HICON changedCopy(const IconBitmaps& bitmaps, ButtonSize size, bool disabled, bool onDark) {
    const ClientDC screen(nullptr);
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), size.width, -size.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    std::vector<uint32_t> pixels = readPixels(screen, bitmaps.colour.get(), info);
    takeMask(pixels, readPixels(screen, bitmaps.mask.get(), info));
    if (onDark) turnLightness(pixels);
    if (disabled) greyPixels(pixels);
    void* bits = nullptr;
    const UniqueBitmap colour(CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!colour) return nullptr;
    std::copy(pixels.begin(), pixels.end(), static_cast<uint32_t*>(bits));
    ICONINFO icon = {TRUE, 0, 0, bitmaps.mask.get(), colour.get()};
    return CreateIconIndirect(&icon);
}

}  // namespace

void greyPixels(std::span<uint32_t> pixels) {
    for (uint32_t& pixel : pixels) {
        const uint32_t red = pixel >> 16 & 0xFF, green = pixel >> 8 & 0xFF, blue = pixel & 0xFF;
        const uint32_t grey = luma(red, green, blue);
        pixel = (pixel >> 25) << 24 | grey << 16 | grey << 8 | grey;
    }
}

void turnLightness(std::span<uint32_t> pixels) {
    for (uint32_t& pixel : pixels) {
        const uint32_t red = pixel >> 16 & 0xFF, green = pixel >> 8 & 0xFF, blue = pixel & 0xFF;
        const auto [least, most] = std::minmax({red, green, blue});
        // Lightness is the middle of the two; added to all three, a difference leaves the hue.
        const uint32_t shift = 255 - least - most;
        pixel = (pixel & 0xFF000000) | (red + shift) << 16 | (green + shift) << 8 | (blue + shift);
    }
}

ButtonIcon::ButtonIcon(HICON icon) : m_icon(icon) {
    if (!icon) return;
    const IconBitmaps bitmaps(icon);
    if (!bitmaps.colour) return;
    m_size = sizeOf(bitmaps);
}

// Made when it is first seen, which most never are.
HICON ButtonIcon::look(bool disabled, bool onDark) const {
    if (!m_size.width || (!disabled && !onDark)) return m_icon.get();
    UniqueIcon& copy = m_copies[(disabled ? 1 : 0) + (onDark ? 2 : 0)];
    if (!copy) copy.reset(changedCopy(IconBitmaps(m_icon.get()), m_size, disabled, onDark));
    return copy ? copy.get() : m_icon.get();
}

void ButtonIcon::draw(HDC dc, int x, int y, bool disabled) const {
    if (!m_icon) return;
    const HICON icon = look(disabled, isDark(GetPixel(dc, x, y)));
    DrawIconEx(dc, x, y, icon, m_size.width, m_size.height, 0, nullptr, DI_NORMAL);
}
