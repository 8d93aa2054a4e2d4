// The functions that take pictures of windows and compare them with approved ones.
#pragma once

#include <span>
#include <string>

#include "host/drive/UiFunction.h"

struct PictureChoices {
    // Where pictures go whose names aren't whole paths; empty for the working folder.
    std::wstring folder;
    // ui_same_shot takes what is there as the approved picture.
    bool approves = false;
};

void setPictureChoices(PictureChoices choices);

// For UiFunctions.cpp.
std::span<const UiFunction> pictureFunctions();
