#include "src/pictures/PictureGuard.h"

namespace {

constexpr uint64_t MOST_PIXELS = uint64_t{1} << 28;

constexpr uint32_t PNG = 0x474E5089;
constexpr uint32_t GIF = 0x38464947;
constexpr uint32_t PLACEABLE = 0x9AC6CDD7;
constexpr uint32_t ENH_HEADER = 1;
constexpr uint32_t ENH_SIGNATURE = 0x464D4520;
constexpr uint16_t BMP = 0x4D42;
constexpr uint16_t JPEG = 0xD8FF;

constexpr uint64_t INFO_HEADER = 40;
constexpr uint64_t CORE_HEADER = 12;

uint64_t magnitude(uint64_t number) { return number < 0x80000000 ? number : 0x100000000 - number; }

// A directory of entries that each tell where an image lies.
bool isSoundIcon(const ByteView& file) {
    constexpr uint64_t DIRECTORY = 6, ENTRY = 16;
    const uint64_t count = file.u16(4);
    if (!file.has(DIRECTORY, count * ENTRY)) return false;
    for (uint64_t entry = DIRECTORY; entry < DIRECTORY + count * ENTRY; entry += ENTRY) {
        const ByteView image = file.part(file.u32(entry + 12));
        const uint64_t size = file.u32(entry + 8);
        if (size < INFO_HEADER || !image.has(0, size)) return false;
        const bool isPng = image.u32(0) == PNG;
        const uint64_t width = isPng ? image.big32(16) : magnitude(image.u32(4));
        const uint64_t height = isPng ? image.big32(20) : magnitude(image.u32(8));
        if (!isBearableSize(width, height)) return false;
    }
    return true;
}

// The size stands in the first of the segments that begin a frame.
bool isSoundJpeg(const ByteView& file) {
    for (uint64_t at = 2; file.has(at, 9);) {
        const uint64_t marker = file.big16(at);
        const bool isPadded = marker == 0xFFFF;
        const bool beginsFrame =
            marker >= 0xFFC0 && marker <= 0xFFCF && marker != 0xFFC4 && marker != 0xFFC8 && marker != 0xFFCC;
        if (beginsFrame) return isBearableSize(file.big16(at + 7), file.big16(at + 5));
        at += isPadded ? 1 : 2 + file.big16(at + 2);
    }
    return true;
}

// The platform finds out by itself where the pixels lie.
bool isSoundBmp(const ByteView& file) {
    constexpr uint64_t FILE_HEADER = 14;
    const ByteView info = file.part(FILE_HEADER);
    if (info.u32(0) == CORE_HEADER) return isBearableSize(info.u16(4), info.u16(6));
    return isBearableSize(magnitude(info.u32(4)), magnitude(info.u32(8)));
}

}  // namespace

bool isBearableSize(uint64_t width, uint64_t height) {
    return width <= MOST_PIXELS && height <= MOST_PIXELS && width * height <= MOST_PIXELS;
}

bool isSoundBitmap(const ByteView& header, const ByteView* bits) {
    const uint64_t headerSize = header.u32(0);
    const bool isCore = headerSize == CORE_HEADER;
    if (!header.has(0, headerSize) || (!isCore && headerSize < INFO_HEADER)) return false;
    const uint64_t width = isCore ? header.u16(4) : magnitude(header.u32(4));
    const uint64_t height = isCore ? header.u16(6) : magnitude(header.u32(8));
    const uint64_t depth = isCore ? header.u16(10) : header.u16(14);
    const uint64_t compression = isCore ? 0 : header.u32(16);
    const uint64_t used = isCore ? 0 : header.u32(32);
    if (!isBearableSize(width, height) || depth > 32) return false;
    constexpr uint64_t BITFIELDS = 3;
    const uint64_t most = depth <= 8 ? uint64_t{1} << depth : 0;
    const uint64_t colors = used ? used : most;
    const uint64_t masks = compression == BITFIELDS && headerSize == INFO_HEADER ? 12 : 0;
    const uint64_t palette = masks + colors * (isCore ? 3 : 4);
    if (!header.has(headerSize, palette)) return false;
    const bool isPlain = compression == 0 || compression == BITFIELDS;
    const uint64_t size = isPlain ? (width * depth + 31) / 32 * 4 * height : header.u32(20);
    return bits ? bits->has(0, size) : header.has(headerSize + palette, size);
}

bool isSoundPicture(std::span<const uint8_t> bytes) {
    const ByteView file(bytes);
    const uint64_t first = file.u32(0);
    if (first == PNG) return isBearableSize(file.big32(16), file.big32(20));
    if (first == GIF) return isBearableSize(file.u16(6), file.u16(8));
    if (first == PLACEABLE) return isSoundMetafile(file);
    if (first == ENH_HEADER && file.u32(40) == ENH_SIGNATURE) return isSoundEnhMetafile(file);
    // An icon or a cursor.
    if (first == 0x00010000 || first == 0x00020000) return isSoundIcon(file);
    if (file.u16(0) == JPEG) return isSoundJpeg(file);
    if (file.u16(0) == BMP) return isSoundBmp(file);
    return true;
}
