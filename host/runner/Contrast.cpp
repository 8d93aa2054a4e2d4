#include "host/runner/Contrast.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace {

constexpr uint32_t COLOR = 0xFFFFFF;

// The relative luminance of an sRGB color.
double luminance(uint32_t color) {
    const auto linear = [color](int shift) {
        const double value = ((color >> shift) & 0xFF) / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0);
}

double contrast(uint32_t a, uint32_t b) {
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

}  // namespace

double contrastOf(std::span<const uint32_t> pixels) {
    std::map<uint32_t, int> counts;
    for (const uint32_t pixel : pixels) ++counts[pixel & COLOR];
    if (counts.empty()) return 1;
    const uint32_t ground = std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) {
                                return a.second < b.second;
                            })->first;
    double best = 1;
    for (const auto& [color, count] : counts) best = std::max(best, contrast(color, ground));
    return best;
}
