// What one node of an argument chain holds. Portable.
#pragma once

#include <optional>

#include "src/platform/host/HostValue.h"

// The number of a short; nothing for any other node.
inline std::optional<int> shortOf(const HostValue& node) {
    if (node.type != HV_SHORT) return std::nullopt;
    return node.value.shortValue;
}

// The text of a string, the node's; null for any other node.
inline const wchar_t* textOf(const HostValue& node) {
    return node.type == HV_STRING ? node.value.stringValue : nullptr;
}
