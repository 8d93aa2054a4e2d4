#include "src/pictures/PicturePlace.h"

namespace {

// What `length` becomes where `from` becomes `to`.
int64_t scaled(int32_t length, int32_t from, int32_t to) {
    return static_cast<int64_t>(static_cast<double>(length) / from * to);
}

}  // namespace

PixelRect fitRect(PixelSize target, PixelSize area) {
    PixelRect rect{0, 0, area.width, area.height};
    const int64_t height = scaled(target.height, target.width, area.width);
    if (height < area.height) {
        rect.top = static_cast<int32_t>((area.height - height) / 2);
        rect.bottom = area.height - rect.top;
    } else if (height > area.height) {
        const int64_t width = scaled(target.width, target.height, area.height);
        if (width > area.width) {
            // kept: a margin of 1, on the left side only
            rect.left = 1;
            rect.top = static_cast<int32_t>((area.height - height) / 2);
            rect.bottom = area.height - rect.top;
        } else {
            rect.left = static_cast<int32_t>((area.width - width) / 2);
            rect.right = area.width - rect.left;
        }
    }
    return rect;
}

PixelRect placeOfPicture(PixelSize natural, PixelSize area, bool isMetafile, bool fit) {
    if (area.isEmpty()) return {};
    if (fit) return fitRect(area, area);
    if (natural.isEmpty()) return {};
    const bool hasRoom = natural.width <= area.width && natural.height <= area.height;
    if (isMetafile || !hasRoom) return fitRect(natural, area);
    const int32_t left = (area.width - natural.width) / 2;
    const int32_t top = (area.height - natural.height) / 2;
    return {left, top, left + natural.width, top + natural.height};
}
