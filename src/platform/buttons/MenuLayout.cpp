#include "src/platform/buttons/MenuLayout.h"

#include <algorithm>
#include <cwctype>

namespace {

constexpr int DESIGN_DPI = 96;

// Pixels at 96 dots per inch.
constexpr int PADDING = 3;        // around a mark, and above and below a text
constexpr int TEXT_GAP = 6;       // from the gutter to the text
constexpr int SHORTCUT_GAP = 24;  // from the longest text to the longest shortcut
constexpr int ARROW_ROOM = 18;
constexpr int SEPARATOR_HEIGHT = 7;

int scaled(const MenuMetrics& metrics, int pixels) {
    return (pixels * metrics.dpi + DESIGN_DPI / 2) / DESIGN_DPI;
}

int gutterWidth(const MenuMetrics& metrics) { return metrics.iconSide + 2 * scaled(metrics, PADDING); }

int shortcutRoom(const MenuMetrics& metrics) {
    return metrics.shortcutWidth > 0 ? scaled(metrics, SHORTCUT_GAP) + metrics.shortcutWidth : 0;
}

MenuBox squareIn(const MenuBox& box, int side) {
    const int left = box.left + (box.width() - side) / 2, top = box.top + (box.height() - side) / 2;
    return {left, top, left + side, top + side};
}

}  // namespace

MenuText splitMenuText(std::wstring_view text) {
    const size_t tab = text.find(L'\t');
    if (tab == std::wstring_view::npos) return {text, {}};
    return {text.substr(0, tab), text.substr(tab + 1)};
}

int menuItemHeight(const MenuMetrics& metrics) {
    return std::max(metrics.lineHeight, metrics.iconSide) + 2 * scaled(metrics, PADDING);
}

int menuSeparatorHeight(const MenuMetrics& metrics) { return scaled(metrics, SEPARATOR_HEIGHT); }

int menuItemWidth(const MenuMetrics& metrics) {
    return gutterWidth(metrics) + scaled(metrics, TEXT_GAP) + metrics.labelWidth + shortcutRoom(metrics) +
           scaled(metrics, ARROW_ROOM);
}

MenuItemParts placeMenuItem(const MenuBox& item, const MenuMetrics& metrics) {
    MenuItemParts parts;
    parts.gutter = {item.left, item.top, item.left + gutterWidth(metrics), item.bottom};
    parts.mark = squareIn(parts.gutter, metrics.iconSide);
    const int arrowLeft = item.right - scaled(metrics, ARROW_ROOM);
    parts.arrow = squareIn({arrowLeft, item.top, item.right, item.bottom}, metrics.iconSide);
    parts.shortcut = {arrowLeft - metrics.shortcutWidth, item.top, arrowLeft, item.bottom};
    parts.label = {parts.gutter.right + scaled(metrics, TEXT_GAP), item.top,
                   arrowLeft - shortcutRoom(metrics), item.bottom};
    return parts;
}

MenuKeyAnswer answerMenuKey(std::span<const wchar_t> mnemonics, wchar_t key, int current) {
    const auto wanted = static_cast<wchar_t>(std::towlower(key));
    const int count = static_cast<int>(mnemonics.size());
    const auto found = std::count(mnemonics.begin(), mnemonics.end(), wanted);
    if (!wanted || found == 0) return {};
    int at = current;
    do at = (at + 1) % count;
    while (mnemonics[at] != wanted);
    return {at, found == 1};
}
