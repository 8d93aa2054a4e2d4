// What doesn't fit between a dialog's key list and its template. Portable.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/runner/DialogKinds.h"
#include "src/platform/base/DialogTemplate.h"
#include "src/platform/base/KeyListText.h"

// The room that a control has for its text, in dialog units.
struct TextRoom {
    int width = 0;
    int height = 0;
    bool wraps = false;
    bool hasMnemonic = true;
};

// Whether a text fits that room in the template's font.
using FitsRoom = std::function<bool(const std::wstring& text, const TextRoom& room)>;

// What a dialog is made with.
struct DialogSurroundings {
    std::vector<IconCaption> iconCaptions;
    FitsRoom fits;
    // Whether controls of that window class can be made.
    std::function<bool(const std::wstring& className)> knowsClass;
};

// The text of each finding: key or control id, what is wrong, and how to mend it.
std::vector<std::wstring> findMismatches(const KeyListText& keys, const DialogTemplate& dialog,
                                         const DialogSurroundings& surroundings);

// The texts that controls cut off, alone.
std::vector<std::wstring> findClippedTexts(const DialogTemplate& dialog,
                                           const DialogSurroundings& surroundings);
