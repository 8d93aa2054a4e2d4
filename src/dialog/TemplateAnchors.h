// The anchor codes that a dialog brings beside its template.
#pragma once

#include <windows.h>

#include <map>

// The code of each control id, from the resource of the type WEX_ANCHORS with the template's number: pairs of
// 16-bit numbers. Empty where there is none. A null module stands for the class library's resource search.
std::map<int, int> templateAnchors(HMODULE module, UINT templateId);
