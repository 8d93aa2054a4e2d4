// How an image button looks in each state, and where its icon and text stand. Portable.
#pragma once

struct ButtonState {
    bool disabled = false;
    bool pressed = false;
    bool hover = false;
    bool isDefault = false;
    bool focused = false;
};

// The face that is drawn; the numbers are the states of the theme's push button.
enum class ButtonFace { normal = 1, hot = 2, pressed = 3, disabled = 4, defaulted = 5 };

ButtonFace buttonFace(const ButtonState& state);

struct ButtonSize {
    int width = 0;
    int height = 0;
};

struct ButtonBox {
    int left = 0, top = 0, width = 0, height = 0;
};

struct ButtonParts {
    ButtonBox icon;
    ButtonBox text;
};

// Where icon and text go within a button's content area: side by side, the icon on the left, `gap` pixels
// between them, and both together in the middle. Either may be empty. What is wider than the area starts at
// its left edge, and the text then gets what is left.
ButtonParts placeButtonParts(const ButtonBox& content, ButtonSize icon, ButtonSize text, int gap);
