// The colors of image tiles, by the numbers that Lisp gives.
#pragma once

#include <cstdint>

// The colour as 0x00BBGGRR. 0 to 256 are entries of g_slideColors; a number that means nothing is black.
uint32_t imageColor(int number);
// Whether the number is one that programs know; any other is black.
bool isImageColor(int number);
