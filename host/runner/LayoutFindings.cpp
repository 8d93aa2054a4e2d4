#include "host/runner/LayoutFindings.h"

#include <algorithm>

#include "src/platform/base/Text.h"

namespace {

constexpr uint32_t BUTTON_KIND = 0xF;
constexpr uint32_t GROUP_BOX = 0x7;
constexpr uint32_t STATIC_KIND = 0x1F;
constexpr uint32_t FIRST_RECTANGLE = 0x4, LAST_RECTANGLE = 0x9, ETCHED_FRAME = 0x12;

bool isTabControl(const PlacedControl& control) {
    return equalIgnoringCase(control.className, L"SysTabControl32");
}

// What is drawn around other controls or behind them.
bool surrounds(const PlacedControl& control) {
    const uint32_t kind = control.style & STATIC_KIND;
    if (control.className == L"Button") return (control.style & BUTTON_KIND) == GROUP_BOX;
    if (control.className == L"Static")
        return (kind >= FIRST_RECTANGLE && kind <= LAST_RECTANGLE) || kind == ETCHED_FRAME;
    return isTabControl(control);
}

bool contains(const PixelRect& outer, const PixelRect& inner) {
    return outer.left <= inner.left && outer.top <= inner.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

bool overlap(const PixelRect& a, const PixelRect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool mayOverlap(const std::vector<PlacedControl>& controls, const PlacedControl& a, const PlacedControl& b) {
    if (!mayHide(a, b)) return true;
    return std::any_of(controls.begin(), controls.end(), [&](const PlacedControl& tab) {
        return isTabControl(tab) && contains(tab.rect, a.rect) && contains(tab.rect, b.rect);
    });
}

std::wstring nameOf(const PlacedControl& control) { return L"control " + std::to_wstring(control.id); }

}  // namespace

bool mayHide(const PlacedControl& a, const PlacedControl& b) {
    const bool isAround =
        (surrounds(a) && contains(a.rect, b.rect)) || (surrounds(b) && contains(b.rect, a.rect));
    return overlap(a.rect, b.rect) && !isAround;
}

std::vector<std::wstring> findMisplaced(const std::vector<PlacedControl>& controls, int width, int height) {
    std::vector<std::wstring> found;
    for (auto a = controls.begin(); a != controls.end(); ++a) {
        if (!contains({0, 0, width, height}, a->rect))
            found.push_back(nameOf(*a) + L" lies outside of the dialog: move it, or make the dialog larger");
        for (auto b = std::next(a); b != controls.end(); ++b)
            if (!mayOverlap(controls, *a, *b))
                found.push_back(nameOf(*b) + L" overlaps " + nameOf(*a) + L": move one of them");
    }
    return found;
}
