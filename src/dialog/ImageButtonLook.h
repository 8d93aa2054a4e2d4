// The captions that turn a button into an image button, and what such a button shows. Portable.
#pragma once

#include <optional>
#include <string_view>

#include "src/platform/base/CString.h"

// The four captions of the resource module. A and B are loaded from one string.
struct ButtonCaptions {
    CString a, b, c, d;
};

// The icons of the resource module.
enum ImageButtonIcon {
    ICON_ARROWS_LEFT = 209,
    ICON_ARROWS_RIGHT = 210,
    ICON_CAPTION_A = 211,
    ICON_CAPTION_C = 212,
    ICON_UP = 1005,
    ICON_DOWN = 1006,
};

struct ImageButtonLook {
    CString text;
    int icon = 0;
    // The icon is 16 by 16 pixels of 96 dots per inch, scaled to the monitor; otherwise the picture of it
    // that suits the monitor has its own size.
    bool scaledIcon = false;
};

// Whether a button of that caption is an image button. kept: caption D alone is none.
bool isImageButtonCaption(std::wstring_view caption, const ButtonCaptions& captions);

// The look that a caption gives; nothing where no rule fits, and the button keeps its text and has no icon.
std::optional<ImageButtonLook> imageButtonLook(std::wstring_view caption, const ButtonCaptions& captions);

// What a tip says for a caption with a mnemonic: "&Next" becomes "Next (Alt+N)".
CString tipText(const CString& caption);

// The side in pixels of an icon on a monitor of that scale (1.0: 96 dots per inch).
int iconSide(const ImageButtonLook& look, double scale);
