#include "src/dialog/ImageButtonLook.h"

#include <cmath>
#include <cwctype>

namespace {

constexpr double SIDE_AT_96_DPI = 16.0;
// The pictures that an icon holds, from the smallest.
constexpr int PICTURE_SIDES[] = {16, 20, 24, 32};

bool contains(std::wstring_view text, std::wstring_view what) {
    return text.find(what) != std::wstring_view::npos;
}

bool startsWith(std::wstring_view caption, size_t length, const CString& name) {
    return equalIgnoringCase(caption.substr(0, length), name);
}

CString withoutArrows(std::wstring_view caption, std::wstring_view arrows) {
    return without(without(caption, std::wstring(arrows) + L" "), arrows);
}

CString withoutMark(std::wstring_view caption) {
    return trimBlanksRight(caption.substr(0, caption.size() - 2));
}

}  // namespace

bool isImageButtonCaption(std::wstring_view caption, const ButtonCaptions& captions) {
    return contains(caption, L"<<") || contains(caption, L">>") || caption.ends_with(L" v") ||
           caption.ends_with(L" ^") || equalIgnoringCase(caption, captions.a) ||
           equalIgnoringCase(caption, captions.b) || equalIgnoringCase(caption, captions.c);
}

std::optional<ImageButtonLook> imageButtonLook(std::wstring_view caption, const ButtonCaptions& captions) {
    const auto& [a, b, c, d] = captions;
    if (caption == L"<<") return ImageButtonLook{L"", ICON_ARROWS_LEFT};
    if (contains(caption, L"<<")) return ImageButtonLook{withoutArrows(caption, L"<<"), ICON_ARROWS_LEFT};
    if (caption == L">>") return ImageButtonLook{L"", ICON_ARROWS_RIGHT};
    if (contains(caption, L">>")) return ImageButtonLook{withoutArrows(caption, L">>"), ICON_ARROWS_RIGHT};
    if (caption.ends_with(L" ^")) return ImageButtonLook{withoutMark(caption), ICON_UP, true};
    if (caption.ends_with(L" v")) return ImageButtonLook{withoutMark(caption), ICON_DOWN, true};
    if (equalIgnoringCase(caption, a) || equalIgnoringCase(caption, b))
        return ImageButtonLook{L"", ICON_CAPTION_A};
    if (equalIgnoringCase(caption, c) || equalIgnoringCase(caption, d))
        return ImageButtonLook{L"", ICON_CAPTION_C};
    if (startsWith(caption, 4, a) || startsWith(caption, 4, b))
        return ImageButtonLook{caption, ICON_CAPTION_A};
    if (startsWith(caption, 6, c)) return ImageButtonLook{caption, ICON_CAPTION_C};
    return std::nullopt;
}

CString tipText(const CString& caption) {
    const size_t at = caption.find(L'&');
    if (!mnemonicOf(caption)) return caption;
    return caption.substr(0, at) + caption.substr(at + 1) + L" (Alt+" +
           static_cast<wchar_t>(std::towupper(caption[at + 1])) + L")";
}

int iconSide(const ImageButtonLook& look, double scale) {
    const int side = static_cast<int>(std::lround(scale * SIDE_AT_96_DPI));
    if (look.scaledIcon) return side;
    int fitting = PICTURE_SIDES[0];
    for (const int picture : PICTURE_SIDES)
        if (picture <= side) fitting = picture;
    return fitting;
}
