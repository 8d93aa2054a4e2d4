// What the control of a template becomes as a tile, in the words of the documents. Portable.
#pragma once

#include <string>
#include <vector>

#include "src/platform/base/CString.h"
#include "src/platform/base/DialogTemplate.h"

// A button of exactly that caption, in any case, shows an icon alone; the tip says what it does, and has its
// mnemonic.
struct IconCaption {
    std::wstring caption;
    std::wstring tip;
};

// Null for a control that isn't a button of such a caption.
const IconCaption* findIconCaption(const std::vector<IconCaption>& captions,
                                   const DialogTemplateControl& control);

// "edit box", "check box", "image tile" and so on; the name of the window class for what has no word.
std::wstring kindWord(const DialogTemplateControl& control, const std::vector<IconCaption>& captions);

// The control id that the key at that position of a key list stands for; the key in lower case.
int controlIdOfKey(const CString& key, size_t position);
