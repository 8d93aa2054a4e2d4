// The text form of a dialog's key list, "NAME,key,key,…", and the control ids that the positions stand for.
// Portable.
#pragma once

#include <optional>
#include <string_view>

#include "src/platform/base/CString.h"

constexpr int OK_CONTROL_ID = 1;
constexpr int CANCEL_CONTROL_ID = 2;
// The control id of the key at position 0.
constexpr int FIRST_KEY_CONTROL_ID = 110;

struct KeyListText {
    CString name;
    CStringArray keys;  // by position; empty where a position has no key
};

// The text before the first comma, as it stands; empty where there is no comma.
std::wstring_view keyListName(std::wstring_view text);

// Splits a key list at its commas; nothing is trimmed and the last field counts even when it is empty. The
// first comma is searched from the second character on. Nothing where there is none.
std::optional<KeyListText> splitKeyList(std::wstring_view text);
// The same with all of it in lower case.
std::optional<KeyListText> parseKeyList(std::wstring_view text);
