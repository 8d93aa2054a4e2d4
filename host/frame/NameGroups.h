// Many names in a few groups by their first letters, for a menu. Portable.
#pragma once

#include <string>
#include <vector>

struct NameGroup {
    std::wstring title;  // "A - C", or the letter alone; its mnemonic is marked
    std::vector<std::wstring> names;
};

// The names in alphabetical order, those of one first letter together. Letters share a group as long as it
// has at most `most` names.
std::vector<NameGroup> groupNames(std::vector<std::wstring> names, size_t most);
