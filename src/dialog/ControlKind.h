// Which of the product's controls a bare control of a template becomes, told from its traits alone. Portable.
#pragma once

#include <cstdint>
#include <string_view>

#include "src/dialog/ImageButtonLook.h"

enum class ControlKind {
    slideImage,
    frame,
    imageButton,
    button,
    grid,
    tab,
    tree,
    edit,
    staticText,
    listBox,
    comboBox,
    listControl,
    unknown,
};

// The style of a group box that becomes a frame: child, visible, clip-siblings and group box, and no further
// bit.
constexpr uint32_t FRAME_STYLE = 0x54000007;
// The extended style bit that makes a button a slide tile.
constexpr uint32_t SLIDE_EX_STYLE = 0x20000;

struct ControlTraits {
    std::wstring_view className;  // compared with case
    uint32_t style = 0;
    uint32_t exStyle = 0;
    std::wstring_view caption;
};

ControlKind controlKindOf(const ControlTraits& control, const ButtonCaptions& captions);
