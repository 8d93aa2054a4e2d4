// The pixels of a picture. Portable.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

struct Picture {
    int width = 0;
    int height = 0;
    // Four bytes for each: blue, green, red, and one that means nothing; rows from the top.
    std::vector<uint8_t> pixels;

    Picture() = default;
    // A black one.
    Picture(int wide, int high) : width(wide), height(high), pixels(size_t{4} * wide * high) {}

    bool has(int x, int y) const { return x < width && y < height; }
    const uint8_t* at(int x, int y) const { return &pixels[(size_t{4} * y * width) + (size_t{4} * x)]; }
    uint8_t* at(int x, int y) { return &pixels[(size_t{4} * y * width) + (size_t{4} * x)]; }

    bool operator==(const Picture&) const = default;
};
