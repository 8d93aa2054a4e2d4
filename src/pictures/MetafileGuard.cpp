// The records of metafiles: the platform plays them as they are, so each has to lie within the file and to
// hold what its counts and offsets say.
#include "src/pictures/PictureGuard.h"

namespace {

constexpr uint64_t WORD_SIZE = 2;
constexpr uint64_t POINT_16 = 4;

// A record is a size in words, a function and parameters.
enum WordFunction : uint16_t {
    WMF_END = 0x0000,
    WMF_SET_PALETTE = 0x0037,
    WMF_CREATE_PALETTE = 0x00F7,
    WMF_INVERT_REGION = 0x012A,
    WMF_PAINT_REGION = 0x012B,
    WMF_CLIP_REGION = 0x012C,
    WMF_SELECT = 0x012D,
    WMF_PATTERN_BRUSH_DIB = 0x0142,
    WMF_DELETE = 0x01F0,
    WMF_PATTERN_BRUSH = 0x01F9,
    WMF_FILL_REGION = 0x0228,
    WMF_SELECT_PALETTE = 0x0234,
    WMF_PEN = 0x02FA,
    WMF_FONT = 0x02FB,
    WMF_BRUSH = 0x02FC,
    WMF_POLYGON = 0x0324,
    WMF_POLYLINE = 0x0325,
    WMF_FRAME_REGION = 0x0429,
    WMF_ANIMATE_PALETTE = 0x0436,
    WMF_TEXT = 0x0521,
    WMF_POLYPOLYGON = 0x0538,
    WMF_ESCAPE_CODE = 0x0626,
    WMF_REGION = 0x06FF,
    WMF_BITBLT_OLD = 0x0922,
    WMF_BITBLT_DIB = 0x0940,
    WMF_EXT_TEXT = 0x0A32,
    WMF_STRETCHBLT_OLD = 0x0B23,
    WMF_STRETCHBLT_DIB = 0x0B41,
    WMF_DIB_TO_DEVICE = 0x0D33,
    WMF_STRETCH_DIB = 0x0F43,
};

bool isSoundPolyPolygon(const ByteView& words) {
    const uint64_t polygons = words.u16(0);
    uint64_t points = 0;
    if (!words.has(WORD_SIZE, polygons * WORD_SIZE)) return false;
    for (uint64_t at = 0; at < polygons; ++at) points += words.u16(WORD_SIZE + at * WORD_SIZE);
    return words.has(WORD_SIZE + polygons * WORD_SIZE, points * POINT_16);
}

// A blit without a source has no bitmap behind its numbers, and no more words than its function says.
bool isSoundBlit(const ByteView& words, uint64_t bitmapAt, uint64_t wordsWithoutSource) {
    if (words.size() <= wordsWithoutSource * WORD_SIZE) return words.has(0, wordsWithoutSource * WORD_SIZE);
    return isSoundBitmap(words.part(bitmapAt * WORD_SIZE), nullptr);
}

// Bounds, and rows of spans, each with its count before and behind it.
bool isSoundRegion(const ByteView& words) {
    constexpr uint64_t ROWS_AT = 5 * WORD_SIZE, HEADER = 11 * WORD_SIZE, ROW_HEADER = 3 * WORD_SIZE;
    uint64_t at = HEADER;
    for (uint64_t row = 0; row < words.u16(ROWS_AT); ++row) {
        const uint64_t spans = words.u16(at);
        const uint64_t end = at + ROW_HEADER + spans * WORD_SIZE;
        if (spans % 2 != 0 || !words.has(at, ROW_HEADER) || words.u16(end) != spans) return false;
        at = end + WORD_SIZE;
    }
    return words.has(0, at);
}

// The first `count` words are numbers of objects.
bool nameObjects(const ByteView& words, uint64_t count, uint64_t objects) {
    for (uint64_t at = 0; at < count; ++at)
        if (!words.has(at * WORD_SIZE, WORD_SIZE) || words.u16(at * WORD_SIZE) >= objects) return false;
    return true;
}

// The platform reads a font's name up to its end, wherever within the record that is.
bool hasEndedName(const ByteView& words) {
    constexpr uint64_t NAME_AT = 9 * WORD_SIZE;
    for (uint64_t at = NAME_AT; at < words.size(); ++at) {
        if (words.u8(at) == 0) return true;
    }
    return false;
}

// `words`: the parameters.
bool isSoundWordRecord(uint64_t function, const ByteView& words, uint64_t objects) {
    // The first digit of most functions counts their words.
    const uint64_t least = function >> 8 & 0x0F;
    switch (function) {
        case WMF_PEN:
            return words.has(0, 5 * WORD_SIZE);
        case WMF_BRUSH:
            return words.has(0, 4 * WORD_SIZE);
        case WMF_FONT:
            return hasEndedName(words);
        case WMF_SELECT:
        case WMF_DELETE:
        case WMF_SELECT_PALETTE:
        case WMF_INVERT_REGION:
        case WMF_PAINT_REGION:
        case WMF_CLIP_REGION:
            return nameObjects(words, 1, objects);
        case WMF_FILL_REGION:
            return nameObjects(words, 2, objects);
        case WMF_FRAME_REGION:
            return nameObjects(words, 2, objects) && words.has(0, 4 * WORD_SIZE);
        case WMF_REGION:
            return isSoundRegion(words);
        case WMF_POLYGON:
        case WMF_POLYLINE:
            return words.has(WORD_SIZE, words.u16(0) * POINT_16);
        case WMF_POLYPOLYGON:
            return isSoundPolyPolygon(words);
        case WMF_TEXT:
            return words.has(0, WORD_SIZE) &&
                   words.has(WORD_SIZE, (words.u16(0) + 1) / 2 * WORD_SIZE + 2 * WORD_SIZE);
        case WMF_EXT_TEXT: {
            const uint64_t rectangle = words.u16(6) & 6 ? 4 * WORD_SIZE : 0;
            return words.has(0, 4 * WORD_SIZE) &&
                   words.has(4 * WORD_SIZE + rectangle, (words.u16(4) + 1) / 2 * WORD_SIZE);
        }
        case WMF_CREATE_PALETTE:
        case WMF_SET_PALETTE:
        case WMF_ANIMATE_PALETTE:
            return words.has(0, 2 * WORD_SIZE) && words.has(2 * WORD_SIZE, words.u16(WORD_SIZE) * 4);
        case WMF_ESCAPE_CODE:
            return words.has(0, 2 * WORD_SIZE) && words.has(2 * WORD_SIZE, words.u16(WORD_SIZE));
        case WMF_STRETCH_DIB:
            return isSoundBitmap(words.part(11 * WORD_SIZE), nullptr);
        case WMF_DIB_TO_DEVICE:
            return isSoundBitmap(words.part(9 * WORD_SIZE), nullptr);
        case WMF_STRETCHBLT_DIB:
            return isSoundBlit(words, 10, 11);
        case WMF_BITBLT_DIB:
            return isSoundBlit(words, 8, 9);
        case WMF_PATTERN_BRUSH_DIB:
            return isSoundBitmap(words.part(2 * WORD_SIZE), nullptr);
        case WMF_PATTERN_BRUSH:
        case WMF_BITBLT_OLD:
        case WMF_STRETCHBLT_OLD:
            // Bitmaps of a device. The platform takes their fields from other places than where writers put
            // them, so none can be told to be sound.
            return false;
        default:
            return words.has(0, least * WORD_SIZE);
    }
}

}  // namespace

bool isSoundMetafile(const ByteView& file) {
    constexpr uint64_t PLACEABLE_HEADER = 22, HEADER = 18, RECORD = 6;
    const ByteView meta = file.part(PLACEABLE_HEADER, file.u32(PLACEABLE_HEADER + 6) * WORD_SIZE);
    const uint64_t size = file.u32(PLACEABLE_HEADER + 6) * WORD_SIZE;
    const uint64_t objects = meta.u16(10);
    if (!meta.has(0, size) || size < HEADER || meta.u16(2) * WORD_SIZE != HEADER) return false;
    for (uint64_t at = HEADER; meta.has(at, RECORD);) {
        const uint64_t length = meta.u32(at) * WORD_SIZE;
        const uint64_t function = meta.u16(at + 4);
        if (length < RECORD || !meta.has(at, length)) return false;
        if (function == WMF_END) return true;
        if (!isSoundWordRecord(function, meta.part(at + RECORD, length - RECORD), objects)) return false;
        at += length;
    }
    return false;
}
