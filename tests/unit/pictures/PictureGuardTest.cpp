#include "src/pictures/PictureGuard.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

// The bytes of a file, written low byte first.
class Bytes {
  public:
    Bytes(std::initializer_list<int> bytes = {}) : m_bytes(bytes.begin(), bytes.end()) {}
    Bytes& u8(uint8_t value) {
        m_bytes.push_back(value);
        return *this;
    }
    Bytes& u16(uint32_t value) { return u8(value & 0xFF).u8(value >> 8 & 0xFF); }
    Bytes& u32(uint32_t value) { return u16(value & 0xFFFF).u16(value >> 16); }
    Bytes& zeros(size_t count) {
        m_bytes.resize(m_bytes.size() + count);
        return *this;
    }
    Bytes& add(const Bytes& other) {
        m_bytes.insert(m_bytes.end(), other.m_bytes.begin(), other.m_bytes.end());
        return *this;
    }
    size_t size() const { return m_bytes.size(); }
    bool isSound() const { return isSoundPicture(m_bytes); }

  private:
    std::vector<uint8_t> m_bytes;
};

// A record of a metafile: `words` are its parameters.
Bytes wordRecord(uint32_t function, const std::vector<uint32_t>& words) {
    Bytes record;
    record.u32(static_cast<uint32_t>(3 + words.size())).u16(function);
    for (const uint32_t word : words) record.u16(word);
    return record;
}

bool plays(const Bytes& records, uint32_t extraWords = 0) {
    Bytes file;
    const Bytes end = wordRecord(0, {});
    file.u32(0x9AC6CDD7).zeros(18);
    file.u16(1).u16(9).u16(0x300);
    file.u32(static_cast<uint32_t>(9 + (records.size() + end.size()) / 2) + extraWords);
    file.u16(2).u32(0).u16(0);
    return file.add(records).add(end).isSound();
}

Bytes enhRecord(uint32_t type, const Bytes& data) {
    Bytes record;
    record.u32(type).u32(static_cast<uint32_t>(8 + data.size()));
    return record.add(data);
}

bool playsEnhanced(const Bytes& records, uint32_t extraBytes = 0) {
    const Bytes end = enhRecord(14, Bytes().zeros(12));
    Bytes file;
    file.u32(1).u32(88).zeros(32).u32(0x464D4520).u32(0x10000);
    file.u32(static_cast<uint32_t>(88 + records.size() + end.size()) + extraBytes);
    file.u32(3).u16(3).zeros(14).u32(1280).u32(1024).u32(320).u32(256);
    return file.add(records).add(end).isSound();
}

TEST(PictureGuard, LeavesWhatItDoesntKnowToThePlatform) {
    EXPECT_TRUE(Bytes().isSound());
    EXPECT_TRUE(Bytes().u32(0x12345678).isSound());
}

TEST(PictureGuard, RefusesSizesThatNoMemoryHolds) {
    const auto png = [](int side) {
        const Bytes length = {0, side >> 16, side >> 8 & 0xFF, 0};
        return Bytes{0x89, 'P', 'N', 'G'}.zeros(12).add(length).add(length);
    };
    EXPECT_TRUE(png(4096).isSound());
    EXPECT_FALSE(png(0x10000).isSound());
    const auto bmp = [](uint32_t height) {
        return Bytes().u16(0x4D42).zeros(12).u32(40).u32(0x4000).u32(height);
    };
    EXPECT_TRUE(bmp(0x4000).isSound());
    EXPECT_TRUE(bmp(0xFFFFC000).isSound());  // counted from the top
    EXPECT_FALSE(bmp(0x4001).isSound());
    // The frame comes behind a segment of four bytes.
    const auto jpeg = [](int high) {
        return Bytes{0xFF, 0xD8, 0xFF, 0xE0, 0, 4, 0, 0, 0xFF, 0xC0, 0, 17, 8, high, 1, high, 0};
    };
    EXPECT_TRUE(jpeg(16).isSound());
    EXPECT_FALSE(jpeg(255).isSound());
}

TEST(PictureGuard, RefusesIconsWhoseImagesLieOutsideOfTheFile) {
    const auto icon = [](uint32_t size, uint32_t offset) {
        Bytes file;
        file.u16(0).u16(1).u16(1).zeros(8).u32(size).u32(offset);
        return file.u32(40).u32(16).u32(32).zeros(100);
    };
    EXPECT_TRUE(icon(112, 22).isSound());
    EXPECT_FALSE(icon(113, 22).isSound());
    EXPECT_FALSE(icon(112, 0xFFFFFFF0).isSound());
    EXPECT_FALSE(Bytes().u16(0).u16(1).u16(9).zeros(30).isSound());
}

TEST(PictureGuard, WalksTheRecordsOfAMetafile) {
    EXPECT_TRUE(plays({}));
    EXPECT_FALSE(plays({}, 1));
    EXPECT_FALSE(plays(Bytes().u32(0x7FFFFFFF).u16(0x0213)));
    EXPECT_FALSE(plays(Bytes().u32(0).u16(0x0213)));
    EXPECT_TRUE(plays(wordRecord(0x041B, {9, 9, 0, 0})));
    EXPECT_FALSE(plays(wordRecord(0x041B, {9, 9, 0})));  // a rectangle of three numbers
    EXPECT_TRUE(plays(wordRecord(0x0324, {2, 0, 0, 9, 9})));
    EXPECT_FALSE(plays(wordRecord(0x0324, {3, 0, 0, 9, 9})));
    EXPECT_TRUE(plays(wordRecord(0x0538, {2, 1, 1, 0, 0, 9, 9})));
    EXPECT_FALSE(plays(wordRecord(0x0538, {2, 1, 2, 0, 0, 9, 9})));
    EXPECT_FALSE(plays(wordRecord(0x0538, {0xFFFF})));
    EXPECT_TRUE(plays(wordRecord(0x012D, {1})));
    EXPECT_FALSE(plays(wordRecord(0x012D, {2})));  // there are two objects
    EXPECT_TRUE(plays(wordRecord(0x0521, {3, 'a', 'b', 0, 0})));
    EXPECT_FALSE(plays(wordRecord(0x0521, {300, 'a', 'b', 0, 0})));
    EXPECT_TRUE(plays(wordRecord(0x0228, {1, 0})));  // a region is filled
    EXPECT_FALSE(plays(wordRecord(0x0228, {1, 2})));
    EXPECT_FALSE(plays(wordRecord(0x012C, {2})));
}

TEST(PictureGuard, CountsTheSpansOfARegion) {
    const auto region = [](uint32_t rows, uint32_t spans, uint32_t spansAgain) {
        return wordRecord(0x06FF, {0, 6, 0, 0, 34, rows, 2, 1, 0, 9, 5, spans, 0, 5, 1, 9, spansAgain});
    };
    EXPECT_TRUE(plays(region(0, 0, 0)));
    EXPECT_TRUE(plays(region(1, 2, 2)));
    EXPECT_FALSE(plays(region(1, 2, 4)));
    EXPECT_FALSE(plays(region(1, 300, 2)));
    EXPECT_FALSE(plays(region(2, 2, 2)));
    EXPECT_FALSE(plays(wordRecord(0x06FF, {0, 6, 0, 0, 22})));
}

TEST(PictureGuard, LooksIntoTheBitmapsOfAMetafile) {
    std::vector<uint32_t> stretch(11);
    for (const uint32_t word : {40, 0, 2, 0, 2, 0, 1, 24}) stretch.push_back(word);
    stretch.resize(11 + 20);
    EXPECT_FALSE(plays(wordRecord(0x0F43, stretch)));
    stretch.resize(11 + 20 + 8);  // two rows of 8 bytes
    EXPECT_TRUE(plays(wordRecord(0x0F43, stretch)));
    stretch[11 + 2] = 0xFFFF;
    EXPECT_FALSE(plays(wordRecord(0x0F43, stretch)));
}

TEST(PictureGuard, WalksTheRecordsOfAnEnhancedMetafile) {
    EXPECT_TRUE(playsEnhanced({}));
    EXPECT_FALSE(playsEnhanced({}, 1));
    EXPECT_FALSE(playsEnhanced(Bytes().u32(54).u32(0).zeros(8)));
    EXPECT_TRUE(playsEnhanced(enhRecord(54, Bytes().zeros(8))));
    EXPECT_FALSE(playsEnhanced(enhRecord(54, Bytes().zeros(4))));
    const auto polyline = [](uint32_t count) { return enhRecord(4, Bytes().zeros(16).u32(count).zeros(16)); };
    EXPECT_TRUE(playsEnhanced(polyline(2)));
    EXPECT_FALSE(playsEnhanced(polyline(3)));
    EXPECT_FALSE(playsEnhanced(polyline(0xFFFFFFFF)));
    const auto pen = [](uint32_t object) { return enhRecord(38, Bytes().u32(object).zeros(16)); };
    EXPECT_TRUE(playsEnhanced(pen(2)));
    EXPECT_FALSE(playsEnhanced(pen(3)));  // there are three objects, and 0 is the metafile
    EXPECT_TRUE(playsEnhanced(enhRecord(37, Bytes().u32(0x80000007))));
    EXPECT_FALSE(playsEnhanced(enhRecord(37, Bytes().u32(0x00000007))));
}

TEST(PictureGuard, LooksForTheTextsOfAnEnhancedMetafile) {
    // `count` characters stand behind the fields at 40 of one text, or of two.
    const auto text = [](uint32_t count, uint32_t at, uint32_t options, uint32_t distancesAt) {
        return Bytes().zeros(8).u32(count).u32(at).u32(options).zeros(16).u32(distancesAt);
    };
    const auto single = [&](uint32_t count, uint32_t options, uint32_t distancesAt = 0) {
        return playsEnhanced(
            enhRecord(84, Bytes().zeros(28).add(text(count, 76, options, distancesAt)).zeros(16)));
    };
    EXPECT_TRUE(single(8, 0));
    EXPECT_FALSE(single(9, 0));
    EXPECT_TRUE(single(4, 0, 76));
    EXPECT_FALSE(single(4, 0x2000, 76));  // two distances for each character
    const auto several = [&](uint32_t texts, uint32_t count) {
        return playsEnhanced(enhRecord(
            97, Bytes().zeros(28).u32(texts).add(text(2, 120, 0, 0)).add(text(count, 120, 0, 0)).zeros(8)));
    };
    EXPECT_TRUE(several(2, 4));
    EXPECT_FALSE(several(2, 5));
    EXPECT_FALSE(several(0x10000000, 4));
    const auto small = [](uint32_t count, uint32_t options) {
        return playsEnhanced(enhRecord(108, Bytes().zeros(8).u32(count).u32(options).zeros(12).zeros(16)));
    };
    EXPECT_TRUE(small(0, 0));
    EXPECT_FALSE(small(1, 0));
    EXPECT_TRUE(small(8, 0x100));
    EXPECT_FALSE(small(9, 0x100));
    EXPECT_TRUE(small(16, 0x300));
}

TEST(PictureGuard, LooksForTheCornersOfAGradient) {
    const auto gradient = [](uint32_t corners, uint32_t shapes, uint32_t mode, uint32_t corner) {
        Bytes data;
        data.zeros(16).u32(corners).u32(shapes).u32(mode).zeros(2 * 16).u32(0).u32(corner).u32(1);
        return playsEnhanced(enhRecord(118, data));
    };
    EXPECT_TRUE(gradient(2, 1, 0, 1));
    EXPECT_TRUE(gradient(2, 1, 2, 1));
    EXPECT_FALSE(gradient(2, 1, 0, 2));
    EXPECT_FALSE(gradient(2, 2, 0, 1));
    EXPECT_FALSE(gradient(0xFFFFFFFF, 1, 0, 0));
}

}  // namespace
