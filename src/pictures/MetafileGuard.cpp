// The records of metafiles: the platform plays them as they are, so each has to lie within the file and to
// hold what its counts and offsets say.
#include <algorithm>

#include "src/pictures/PictureGuard.h"

namespace {

constexpr uint64_t WORD_SIZE = 2;
constexpr uint64_t POINT_16 = 4;
constexpr uint64_t POINT_32 = 8;

// --- records of words: a size in words, a function, parameters

enum WordFunction : uint16_t {
    WMF_END = 0x0000,
    WMF_SET_PALETTE = 0x0037,
    WMF_CREATE_PALETTE = 0x00F7,
    WMF_SELECT = 0x012D,
    WMF_PATTERN_BRUSH_DIB = 0x0142,
    WMF_DELETE = 0x01F0,
    WMF_PATTERN_BRUSH = 0x01F9,
    WMF_SELECT_PALETTE = 0x0234,
    WMF_PEN = 0x02FA,
    WMF_FONT = 0x02FB,
    WMF_BRUSH = 0x02FC,
    WMF_POLYGON = 0x0324,
    WMF_POLYLINE = 0x0325,
    WMF_ANIMATE_PALETTE = 0x0436,
    WMF_TEXT = 0x0521,
    WMF_POLYPOLYGON = 0x0538,
    WMF_ESCAPE_CODE = 0x0626,
    WMF_REGION = 0x06FF,
    WMF_BITBLT_OLD = 0x0922,
    WMF_BITBLT_DIB = 0x0940,
    WMF_EXT_TEXT = 0x0A32,
    WMF_STRETCHBLT_DIB = 0x0B41,
    WMF_STRETCHBLT_OLD = 0x0B23,
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
            return words.has(0, WORD_SIZE) && words.u16(0) < objects;
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
        case WMF_REGION:
        case WMF_PATTERN_BRUSH:
        case WMF_BITBLT_OLD:
        case WMF_STRETCHBLT_OLD:
            // Regions and bitmaps of a device: nobody writes them any more, and they can't be told to be
            // sound.
            return false;
        default:
            return words.has(0, least * WORD_SIZE);
    }
}

// --- enhanced records: a type, a size in bytes, what belongs to it

enum EnhType : uint32_t {
    ENH_HEADER = 1,
    ENH_POLYBEZIER = 2,
    ENH_POLYLINE_TO = 6,
    ENH_POLYPOLYLINE = 7,
    ENH_POLYPOLYGON = 8,
    ENH_END = 14,
    ENH_SELECT = 37,
    ENH_PEN = 38,
    ENH_BRUSH = 39,
    ENH_DELETE = 40,
    ENH_SELECT_PALETTE = 48,
    ENH_CREATE_PALETTE = 49,
    ENH_SET_PALETTE = 50,
    ENH_RESIZE_PALETTE = 51,
    ENH_POLYDRAW = 56,
    ENH_COMMENT = 70,
    ENH_FILL_REGION = 71,
    ENH_FRAME_REGION = 72,
    ENH_INVERT_REGION = 73,
    ENH_PAINT_REGION = 74,
    ENH_CLIP_REGION = 75,
    ENH_BITBLT = 76,
    ENH_STRETCHBLT = 77,
    ENH_MASKBLT = 78,
    ENH_PLGBLT = 79,
    ENH_DIB_TO_DEVICE = 80,
    ENH_STRETCH_DIB = 81,
    ENH_FONT = 82,
    ENH_TEXT_A = 83,
    ENH_TEXT_W = 84,
    ENH_POLYBEZIER_16 = 85,
    ENH_POLYLINE_TO_16 = 89,
    ENH_POLYPOLYLINE_16 = 90,
    ENH_POLYPOLYGON_16 = 91,
    ENH_POLYDRAW_16 = 92,
    ENH_MONO_BRUSH = 93,
    ENH_DIB_BRUSH = 94,
    ENH_EXT_PEN = 95,
    ENH_POLYTEXT_A = 96,
    ENH_POLYTEXT_W = 97,
    ENH_SMALL_TEXT = 108,
    ENH_ALPHA_BLEND = 114,
    ENH_TRANSPARENT_BLT = 116,
    ENH_GRADIENT = 118,
};

constexpr uint32_t STOCK_OBJECT = 0x80000000;
constexpr uint64_t RECORD_HEADER = 8;

// How many bytes of numbers a record of that type has at least, by its type, for those that have nothing
// else.
constexpr uint8_t LEAST_BYTES[] = {0,  0,  0,  0,  0, 0,  0,  0,  0,  8,  8,  8,  8,  8,  0,  12, 4, 4,
                                   4,  4,  4,  4,  4, 24, 4,  4,  8,  8,  0,  16, 16, 16, 16, 0,  4, 24,
                                   28, 4,  20, 16, 4, 20, 16, 16, 24, 32, 32, 32, 4,  8,  12, 8,  0, 12,
                                   8,  32, 0,  4,  4, 0,  0,  0,  16, 16, 16, 0,  0,  4,  0};

// Counted points behind the bounds of a drawing.
bool isSoundPoly(const ByteView& record, uint64_t pointSize) {
    return record.has(0, 28) && record.has(28, record.u32(24) * pointSize);
}

bool isSoundPolyPoly(const ByteView& record, uint64_t pointSize) {
    const uint64_t polygons = record.u32(24);
    const uint64_t points = record.u32(28);
    if (!record.has(0, 32) || !record.has(32, polygons * 4)) return false;
    uint64_t counted = 0;
    for (uint64_t at = 0; at < polygons; ++at) counted += record.u32(32 + at * 4);
    return counted <= points && record.has(32 + polygons * 4, points * pointSize);
}

// A region lies behind the fields of its record: a header of 32 bytes, then rectangles.
bool isSoundRegion(const ByteView& record, uint64_t sizeAt, uint64_t dataAt) {
    constexpr uint64_t HEADER = 32, RECTANGLE = 16;
    const uint64_t size = record.u32(sizeAt);
    if (size == 0) return record.has(0, dataAt);
    const ByteView data = record.part(dataAt, size);
    return data.has(0, size) && data.u32(0) == HEADER && data.has(HEADER, data.u32(8) * RECTANGLE);
}

// Four fields tell where the header and the rows of a bitmap stand; no header means no bitmap.
bool isSoundBitmapAt(const ByteView& record, uint64_t fields) {
    if (!record.has(fields, 16)) return false;
    const uint64_t headerAt = record.u32(fields), headerSize = record.u32(fields + 4);
    const uint64_t bitsAt = record.u32(fields + 8), bitsSize = record.u32(fields + 12);
    if (headerSize == 0) return true;
    const ByteView bits = record.part(bitsAt, bitsSize);
    return record.has(headerAt, headerSize) && record.has(bitsAt, bitsSize) &&
           isSoundBitmap(record.part(headerAt, headerSize), &bits);
}

bool isSoundText(const ByteView& record, uint64_t charSize) {
    const uint64_t count = record.u32(44), textAt = record.u32(48), widthsAt = record.u32(72);
    return record.has(0, 76) && record.has(textAt, count * charSize) &&
           (widthsAt == 0 || record.has(widthsAt, count * 4));
}

// An object that the record makes or changes.
bool hasObject(const ByteView& record, uint64_t objects) {
    return record.has(0, 12) && record.u32(8) > 0 && record.u32(8) < objects;
}

bool isSoundEnhRecord(uint64_t type, const ByteView& record, uint64_t objects) {
    switch (type) {
        case ENH_POLYPOLYLINE:
        case ENH_POLYPOLYGON:
            return isSoundPolyPoly(record, POINT_32);
        case ENH_POLYPOLYLINE_16:
        case ENH_POLYPOLYGON_16:
            return isSoundPolyPoly(record, POINT_16);
        case ENH_POLYDRAW:
            return isSoundPoly(record, POINT_32 + 1);
        case ENH_POLYDRAW_16:
            return isSoundPoly(record, POINT_16 + 1);
        case ENH_SELECT:
        case ENH_SELECT_PALETTE:
            return record.has(0, 12) && (record.u32(8) >= STOCK_OBJECT || hasObject(record, objects));
        case ENH_PEN:
            return record.has(0, 28) && hasObject(record, objects);
        case ENH_BRUSH:
            return record.has(0, 24) && hasObject(record, objects);
        case ENH_DELETE:
        case ENH_RESIZE_PALETTE:
            return hasObject(record, objects);
        case ENH_CREATE_PALETTE:
            return hasObject(record, objects) && record.has(16, record.u16(14) * 4);
        case ENH_SET_PALETTE:
            return hasObject(record, objects) && record.has(0, 20) && record.has(20, record.u32(16) * 4);
        case ENH_COMMENT:
            return record.has(0, 12) && record.has(12, record.u32(8));
        case ENH_FILL_REGION:
            return record.u32(28) < objects && isSoundRegion(record, 24, 32);
        case ENH_FRAME_REGION:
            return record.u32(28) < objects && isSoundRegion(record, 24, 40);
        case ENH_INVERT_REGION:
        case ENH_PAINT_REGION:
            return isSoundRegion(record, 24, 28);
        case ENH_CLIP_REGION:
            return isSoundRegion(record, 8, 16);
        case ENH_DIB_TO_DEVICE:
            return record.has(0, 76) && isSoundBitmapAt(record, 48);
        case ENH_STRETCH_DIB:
            return record.has(0, 80) && isSoundBitmapAt(record, 48);
        case ENH_BITBLT:
            return record.has(0, 100) && isSoundBitmapAt(record, 84);
        case ENH_STRETCHBLT:
        case ENH_ALPHA_BLEND:
        case ENH_TRANSPARENT_BLT:
            return record.has(0, 108) && isSoundBitmapAt(record, 84);
        case ENH_MASKBLT:
            return record.has(0, 128) && isSoundBitmapAt(record, 84) && isSoundBitmapAt(record, 112);
        case ENH_PLGBLT:
            return record.has(0, 140) && isSoundBitmapAt(record, 96) && isSoundBitmapAt(record, 124);
        case ENH_FONT:
            return hasObject(record, objects) && record.has(0, 104);
        case ENH_TEXT_A:
            return isSoundText(record, 1);
        case ENH_TEXT_W:
            return isSoundText(record, WORD_SIZE);
        case ENH_MONO_BRUSH:
        case ENH_DIB_BRUSH:
            return hasObject(record, objects) && isSoundBitmapAt(record, 16);
        case ENH_EXT_PEN:
            return hasObject(record, objects) && record.has(0, 52) && record.has(52, record.u32(48) * 4) &&
                   isSoundBitmapAt(record, 12);
        case ENH_POLYTEXT_A:
        case ENH_POLYTEXT_W:
        case ENH_SMALL_TEXT:
        case ENH_GRADIENT:
            // So rare that they aren't looked into.
            return false;
        default:
            break;
    }
    if (type >= ENH_POLYBEZIER && type <= ENH_POLYLINE_TO) return isSoundPoly(record, POINT_32);
    if (type >= ENH_POLYBEZIER_16 && type <= ENH_POLYLINE_TO_16) return isSoundPoly(record, POINT_16);
    return type >= std::size(LEAST_BYTES) || record.has(RECORD_HEADER, LEAST_BYTES[type]);
}

// The size in pixels and in millimeters of the device that it was drawn for: without a sensible one all of it
// would be scaled beyond measure, and drawing it would never end.
bool hasSoundDevice(const ByteView& file) {
    constexpr uint64_t MOST = 100000;
    for (const uint64_t at : {72, 76, 80, 84})
        if (file.u32(at) == 0 || file.u32(at) > MOST) return false;
    return true;
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

bool isSoundEnhMetafile(const ByteView& file) {
    constexpr uint64_t HEADER = 88;
    const uint64_t size = file.u32(48);
    const uint64_t objects = file.u16(56);
    if (size < HEADER || !file.has(0, size) || !hasSoundDevice(file)) return false;
    const ByteView meta = file.part(0, size);
    for (uint64_t at = 0; meta.has(at, RECORD_HEADER);) {
        const uint64_t type = meta.u32(at);
        const uint64_t length = meta.u32(at + 4);
        if (length < RECORD_HEADER || length % 4 != 0 || !meta.has(at, length)) return false;
        if (type == ENH_END) return true;
        if (!isSoundEnhRecord(type, meta.part(at, length), objects)) return false;
        at += length;
    }
    return false;
}
