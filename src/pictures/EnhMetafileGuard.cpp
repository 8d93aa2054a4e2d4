// The records of enhanced metafiles, as MetafileGuard.cpp has those of metafiles.
#include <algorithm>

#include "src/pictures/PictureGuard.h"

namespace {

constexpr uint64_t POINT_16 = 4;
constexpr uint64_t POINT_32 = 8;
constexpr uint64_t WIDE_CHAR = 2;

// A record is a type, a size in bytes and what belongs to it.
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

// A text within its record: the place of its first character, how many there are, options, and the distances
// between them, all from `fields` on.
bool isSoundTextAt(const ByteView& record, uint64_t fields, uint64_t charSize) {
    constexpr uint64_t HAS_BOTH_DISTANCES = 0x2000;
    if (!record.has(fields, 40)) return false;
    const uint64_t count = record.u32(fields + 8), textAt = record.u32(fields + 12);
    const uint64_t distancesAt = record.u32(fields + 36);
    const uint64_t distance = record.u32(fields + 16) & HAS_BOTH_DISTANCES ? 8 : 4;
    return record.has(textAt, count * charSize) &&
           (distancesAt == 0 || record.has(distancesAt, count * distance));
}

bool areSoundTexts(const ByteView& record, uint64_t charSize) {
    constexpr uint64_t HEADER = 40, TEXT = 40;
    const uint64_t count = record.u32(36);
    if (!record.has(0, HEADER) || !record.has(HEADER, count * TEXT)) return false;
    for (uint64_t at = HEADER; at < HEADER + count * TEXT; at += TEXT)
        if (!isSoundTextAt(record, at, charSize)) return false;
    return true;
}

// One without distances, and without a rectangle where it says so.
bool isSoundSmallText(const ByteView& record) {
    constexpr uint64_t HEADER = 36, RECTANGLE = 16, HAS_NO_RECTANGLE = 0x100, HAS_BYTES = 0x200;
    const uint64_t options = record.u32(20);
    const uint64_t textAt = HEADER + (options & HAS_NO_RECTANGLE ? 0 : RECTANGLE);
    return record.has(0, HEADER) &&
           record.has(textAt, record.u32(16) * (options & HAS_BYTES ? 1 : WIDE_CHAR));
}

// Corners, and rectangles of two or triangles of three of them.
bool isSoundGradient(const ByteView& record) {
    constexpr uint64_t HEADER = 36, CORNER = 16, TRIANGLES = 2;
    const uint64_t corners = record.u32(24), shapes = record.u32(28);
    const uint64_t numbers = shapes * (record.u32(32) == TRIANGLES ? 3 : 2);
    const uint64_t numbersAt = HEADER + corners * CORNER;
    if (!record.has(0, HEADER) || !record.has(HEADER, corners * CORNER) ||
        !record.has(numbersAt, numbers * 4))
        return false;
    for (uint64_t at = 0; at < numbers; ++at)
        if (record.u32(numbersAt + at * 4) >= corners) return false;
    return true;
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
            return isSoundTextAt(record, 36, 1);
        case ENH_TEXT_W:
            return isSoundTextAt(record, 36, WIDE_CHAR);
        case ENH_MONO_BRUSH:
        case ENH_DIB_BRUSH:
            return hasObject(record, objects) && isSoundBitmapAt(record, 16);
        case ENH_EXT_PEN:
            return hasObject(record, objects) && record.has(0, 52) && record.has(52, record.u32(48) * 4) &&
                   isSoundBitmapAt(record, 12);
        case ENH_POLYTEXT_A:
            return areSoundTexts(record, 1);
        case ENH_POLYTEXT_W:
            return areSoundTexts(record, WIDE_CHAR);
        case ENH_SMALL_TEXT:
            return isSoundSmallText(record);
        case ENH_GRADIENT:
            return isSoundGradient(record);
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
