#include "src/platform/buttons/ButtonLook.h"

#include <algorithm>

ButtonFace buttonFace(const ButtonState& state) {
    if (state.disabled) return ButtonFace::disabled;
    if (state.pressed) return ButtonFace::pressed;
    if (state.hover) return ButtonFace::hot;
    return state.isDefault || state.focused ? ButtonFace::defaulted : ButtonFace::normal;
}

ButtonParts placeButtonParts(const ButtonBox& content, ButtonSize icon, ButtonSize text, int gap) {
    const int between = icon.width > 0 && text.width > 0 ? gap : 0;
    const int whole = icon.width + between + text.width;
    const int left = content.left + std::max(0, (content.width - whole) / 2);
    const auto top = [&](int height) { return content.top + (content.height - height) / 2; };
    const int textLeft = left + icon.width + between;
    const int room = std::max(0, content.left + content.width - textLeft);
    return {{left, top(icon.height), icon.width, icon.height},
            {textLeft, top(text.height), std::min(text.width, room), text.height}};
}
