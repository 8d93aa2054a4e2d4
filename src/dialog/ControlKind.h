// Which of the product's controls a bare control of a template becomes, told from its traits alone. Portable.
#pragma once

#include <cstdint>
#include <string_view>

#include "src/dialog/ImageButtonLook.h"
#include "src/platform/base/DialogResources.h"

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

struct ControlTraits {
    std::wstring_view className;  // compared with case
    uint32_t style = 0;
    uint32_t exStyle = 0;
    std::wstring_view caption;
};

ControlKind controlKindOf(const ControlTraits& control, const ButtonCaptions& captions);
