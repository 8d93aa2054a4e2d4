#include "src/slides/SlideFormat.h"

namespace {

constexpr std::u16string_view MAGIC = u"Korvale Slide";
constexpr size_t LEVEL_AT = 18, HIGH_X_AT = 19, HIGH_Y_AT = 21, MARK_AT = 29;
constexpr uint16_t LITTLE_ENDIAN_MARK = 0x1234;
// A level 1 image ends in this record, which tells its byte order.
constexpr uint16_t END_RECORD = 0xFC00;

std::optional<bool> isLittleEndian(std::span<const uint8_t> image, uint8_t level) {
    if (level == 2) {
        if (image.size() < MARK_AT + 2) return std::nullopt;
        return readU16(&image[MARK_AT], true) == LITTLE_ENDIAN_MARK;
    }
    const uint8_t* end = &image[image.size() - 2];
    if (readU16(end, true) == END_RECORD) return true;
    if (readU16(end, false) == END_RECORD) return false;
    return std::nullopt;
}

}  // namespace

bool beginsWithUnits(std::span<const uint8_t> bytes, std::u16string_view text) {
    const auto byteAt = [&](size_t at) { return at < bytes.size() ? bytes[at] : 0; };
    for (size_t unit = 0; unit < text.size(); ++unit)
        if ((byteAt(2 * unit) | byteAt(2 * unit + 1) << 8) != text[unit]) return false;
    return true;
}

bool slideMagicMatches(std::span<const uint8_t> image) { return beginsWithUnits(image, MAGIC); }

std::optional<SlideHeader> readSlideHeader(std::span<const uint8_t> image) {
    if (image.size() < HIGH_Y_AT + 2) return std::nullopt;
    SlideHeader header;
    header.level = image[LEVEL_AT];
    if (header.level != 1 && header.level != 2) return std::nullopt;
    const auto littleEndian = isLittleEndian(image, header.level);
    if (!littleEndian) return std::nullopt;
    header.littleEndian = *littleEndian;
    header.highX = readU16(&image[HIGH_X_AT], header.littleEndian);
    header.highY = readU16(&image[HIGH_Y_AT], header.littleEndian);
    return header;
}
