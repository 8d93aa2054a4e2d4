#include "host/drive/PictureDifference.h"

#include <algorithm>
#include <cstdlib>

namespace {

// In each of red, green and blue, of 255: what smoothing and rounding make of one color.
constexpr int SHADE = 8;
// One point in so many may differ by more. The smallest letters have some ten points, and dialogs some
// 100,000.
constexpr int POINTS_IN = 20'000;

bool differsAt(const Picture& a, const Picture& b, int x, int y) {
    const uint8_t *left = a.at(x, y), *right = b.at(x, y);
    return std::abs(left[0] - right[0]) > SHADE || std::abs(left[1] - right[1]) > SHADE ||
           std::abs(left[2] - right[2]) > SHADE;
}

// Three quarters of the way to white.
uint8_t pale(uint8_t part) { return static_cast<uint8_t>(255 - (255 - part) / 4); }

}  // namespace

bool PictureDifference::looksSame() const {
    // Of small pictures a single point may differ.
    return sameSize && differing <= std::max(points / POINTS_IN, 1);
}

std::wstring PictureDifference::text() const {
    if (!sameSize) return L"the sizes differ";
    return std::to_wstring(differing) + L" of " + std::to_wstring(points) + L" points differ";
}

PictureDifference compare(const Picture& approved, const Picture& taken) {
    PictureDifference difference;
    difference.sameSize = approved.width == taken.width && approved.height == taken.height;
    difference.points = approved.width * approved.height;
    if (!difference.sameSize) return difference;
    for (int y = 0; y < taken.height; ++y)
        for (int x = 0; x < taken.width; ++x) difference.differing += differsAt(approved, taken, x, y);
    return difference;
}

Picture markDifferences(const Picture& approved, const Picture& taken) {
    Picture marked(std::max(approved.width, taken.width), std::max(approved.height, taken.height));
    for (int y = 0; y < marked.height; ++y)
        for (int x = 0; x < marked.width; ++x) {
            uint8_t* point = marked.at(x, y);
            const bool inBoth = approved.has(x, y) && taken.has(x, y);
            if (inBoth && !differsAt(approved, taken, x, y)) {
                std::transform(taken.at(x, y), taken.at(x, y) + 3, point, &pale);
            } else {
                point[2] = 255;
            }
        }
    return marked;
}
