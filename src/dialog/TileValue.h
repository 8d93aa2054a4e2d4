// What the text given to wex_set_tile means to a control of each class. Portable.
#pragma once

#include <string_view>

enum class ValueMeaning {
    buttonState,  // "1" and "0" are check states, anything else a caption
    listControlRow,
    tab,
    listBoxEntry,
    comboBoxEntry,
    text,
};

// By the window's class name, compared with case.
ValueMeaning valueMeaning(std::wstring_view className);
