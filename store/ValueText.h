// The texts of what a database holds, the same for every product. Portable.
#pragma once

#include <span>
#include <string>

#include "store/DataAccess.h"

// Appends NULL as nothing, an integer in decimal, a real as the shortest text that reads back as the same
// number, others as they are.
void appendText(std::wstring& text, const DataValue& value);

// Two hexadecimal digits for each byte.
void appendHex(std::wstring& text, std::span<const unsigned char> bytes);

// The real whose shortest text is that of `single`: 0.1f gives 0.1.
double realOfSingle(float single);
