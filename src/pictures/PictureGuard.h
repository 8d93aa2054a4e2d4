// What the platform's picture service takes on trust in a file, and what would lead it astray: sizes that no
// memory holds, and places in icons and metafiles that lie outside of the file. Portable.
#pragma once

#include <cstdint>
#include <span>

#include "src/pictures/ByteView.h"

// Whether the bytes may be given to the platform. A file of a kind that isn't known here is left to it.
bool isSoundPicture(std::span<const uint8_t> bytes);

// Whether a bitmap of that many pixels can be had: at most 2^28, which are a gigabyte.
bool isBearableSize(uint64_t width, uint64_t height);

// The metafile with a placeable header of 22 bytes before it, and the enhanced one.
bool isSoundMetafile(const ByteView& file);
bool isSoundEnhMetafile(const ByteView& file);

// Whether a device-independent bitmap lies within: its header at the beginning with the palette behind it,
// and its rows in `bits`, or behind the palette with null.
bool isSoundBitmap(const ByteView& header, const ByteView* bits);
