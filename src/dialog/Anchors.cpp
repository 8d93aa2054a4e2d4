#include "src/dialog/Anchors.h"

#include <initializer_list>

bool isAnchorCode(int code) {
    int rest = code;
    for (const int weight : {300, 150, 75, 38, 25, 10, 1})
        if (rest >= weight) rest -= weight;
    return rest == 0 || code == -1;
}

AnchorOffsets anchorOffsets(int code, const PixelRect& control, int width, int height, HeightShares shares) {
    AnchorOffsets offsets;
    offsets.heightAtStart = height;
    offsets.shares = shares;
    const auto takes = [&code](int weight) {
        if (code < weight) return false;
        code -= weight;
        return true;
    };
    if (takes(300)) offsets.verticalCentre = height - control.height() / 2 - control.bottom;
    if (takes(150)) offsets.horizontalCentre = width / 2 - control.width() / 2 - control.left;
    const bool all = takes(75);
    const bool bottom = takes(38), right = takes(25), left = takes(10), top = takes(1);
    if (all || bottom) offsets.bottom = height - control.bottom;
    if (all || right) offsets.right = width - control.right;
    if (all || left) offsets.left = width - control.left;
    if (all || top) offsets.top = height - control.top;
    return offsets;
}

PixelRect anchored(PixelRect control, const AnchorOffsets& offsets, int width, int height) {
    const auto follow = [](int32_t& edge, int32_t offset, int size) {
        if (offset > AnchorOffsets::UNANCHORED) edge = size - offset;
    };
    const auto sharedHeight = [&](int percent) {
        return offsets.heightAtStart + (height - offsets.heightAtStart) * percent / 100;
    };
    follow(control.left, offsets.left, width);
    follow(control.right, offsets.right, width);
    follow(control.top, offsets.top, sharedHeight(offsets.shares.top));
    follow(control.bottom, offsets.bottom, sharedHeight(offsets.shares.bottom));
    const auto centre = [](int32_t& low, int32_t& high, int32_t offset, int size) {
        if (offset <= AnchorOffsets::UNANCHORED) return;
        const int32_t kept = high - low;
        low = size / 2 - kept / 2 - offset;
        high = low + kept;
    };
    centre(control.left, control.right, offsets.horizontalCentre, width);
    centre(control.top, control.bottom, offsets.verticalCentre, height);
    return control;
}
