// The anchor codes that a dialog brings beside its template.
#pragma once

#include <windows.h>

#include <map>

#include "src/dialog/Anchors.h"

struct TemplateAnchor {
    int code;
    HeightShares shares;
};

// The anchor of each control id, from the resource of the type WEX_ANCHORS with the template's number: 16-bit
// numbers, four for each anchor, which are id, code, and the shares of top and bottom. Empty where there is
// none. A null module stands for the class library's resource search.
std::map<int, TemplateAnchor> templateAnchors(HMODULE module, UINT templateId);
