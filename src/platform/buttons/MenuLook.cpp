#include "src/platform/buttons/MenuLook.h"

#include <vssym32.h>

#include <algorithm>
#include <array>

#include "src/platform/buttons/ButtonIcon.h"

namespace {

// The theme's class MENU, whose numbers aren't in every set of headers.
constexpr int POPUP_BACKGROUND = 9, POPUP_CHECK = 11, POPUP_CHECK_BACKGROUND = 12, POPUP_GUTTER = 13,
              POPUP_ITEM = 14, POPUP_SEPARATOR = 15, POPUP_ARROW = 16;
enum ItemState { NORMAL = 1, HOT = 2, DISABLED = 3, DISABLED_HOT = 4 };
enum CheckState { CHECK_NORMAL = 1, CHECK_DISABLED = 2, BULLET_NORMAL = 3, BULLET_DISABLED = 4 };
enum CheckBackground { UNDER_DISABLED = 1, UNDER_MARK = 2, UNDER_ICON = 3 };
enum ArrowState { ARROW_NORMAL = 1, ARROW_DISABLED = 2 };

// Marks are drawn on a square of so many units.
constexpr int UNITS = 16;

LOGFONTW menuFontAt(int dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, static_cast<UINT>(dpi));
    return metrics.lfMenuFont;
}

RECT rectOf(const MenuBox& box) { return {box.left, box.top, box.right, box.bottom}; }

// Points in units of the square `box`.
std::array<POINT, 3> pointsIn(const RECT& box, const double (&units)[3][2]) {
    std::array<POINT, 3> points;
    for (size_t at = 0; at < points.size(); ++at)
        points[at] = {box.left + static_cast<LONG>(units[at][0] * (box.right - box.left) / UNITS + 0.5),
                      box.top + static_cast<LONG>(units[at][1] * (box.bottom - box.top) / UNITS + 0.5)};
    return points;
}

void drawCheck(HDC dc, const RECT& box, COLORREF color) {
    const auto points = pointsIn(box, {{3.5, 8}, {6.5, 11}, {12, 4.5}});
    const int width = std::max<int>(2, (box.right - box.left) / 8);
    const UniquePen pen(CreatePen(PS_SOLID, width, color));
    const SelectedObject selected(dc, pen.get());
    Polyline(dc, points.data(), static_cast<int>(points.size()));
}

// Full shapes without a line around them.
template <class Draw>
void fillShape(HDC dc, COLORREF color, Draw draw) {
    const UniqueBrush brush(CreateSolidBrush(color));
    const UniquePen pen(CreatePen(PS_SOLID, 1, color));
    const SelectedObject selectedBrush(dc, brush.get());
    const SelectedObject selectedPen(dc, pen.get());
    draw();
}

void drawBullet(HDC dc, const RECT& box, COLORREF color) {
    const int inset = (box.right - box.left) * 5 / UNITS;
    fillShape(dc, color,
              [&] { Ellipse(dc, box.left + inset, box.top + inset, box.right - inset, box.bottom - inset); });
}

void drawArrow(HDC dc, const RECT& box, COLORREF color) {
    const auto points = pointsIn(box, {{6, 4}, {10, 8}, {6, 12}});
    fillShape(dc, color, [&] { Polygon(dc, points.data(), static_cast<int>(points.size())); });
}

void drawText(HDC dc, std::wstring_view text, const MenuBox& box, UINT flags) {
    RECT rect = rectOf(box);
    DrawTextW(dc, text.data(), static_cast<int>(text.size()), &rect, flags | DT_SINGLELINE | DT_VCENTER);
}

int textWidth(HDC dc, std::wstring_view text, UINT flags) {
    RECT rect{};
    DrawTextW(dc, text.data(), static_cast<int>(text.size()), &rect, flags | DT_SINGLELINE | DT_CALCRECT);
    return rect.right;
}

}  // namespace

MenuLook::MenuLook(HWND window, bool highContrast)
    : m_dpi(static_cast<int>(GetDpiForWindow(window))),
      m_iconSide(GetSystemMetricsForDpi(SM_CXSMICON, static_cast<UINT>(m_dpi))) {
    LOGFONTW font = menuFontAt(m_dpi);
    m_font.reset(CreateFontIndirectW(&font));
    font.lfWeight = FW_BOLD;
    m_defaultFont.reset(CreateFontIndirectW(&font));
    const ClientDC dc(window);
    const SelectedObject selected(dc, m_font.get());
    TEXTMETRICW metric{};
    GetTextMetricsW(dc, &metric);
    m_lineHeight = metric.tmHeight;
    BOOL flat = FALSE;
    m_isFlat = SystemParametersInfoW(SPI_GETFLATMENU, 0, &flat, 0) && flat;
    if (IsThemeActive() && !highContrast) m_theme = OpenThemeData(window, L"MENU");
}

MenuLook::~MenuLook() {
    if (m_theme) CloseThemeData(m_theme);
}

MenuMetrics MenuLook::metrics() const {
    return {.dpi = m_dpi, .iconSide = m_iconSide, .lineHeight = m_lineHeight};
}

void MenuLook::measure(const MenuItemLook& item, MenuMetrics& metrics) const {
    const ClientDC dc(nullptr);
    const SelectedObject selected(dc, font(item));
    const MenuText text = splitMenuText(item.text);
    metrics.labelWidth = std::max(metrics.labelWidth, textWidth(dc, text.label, 0));
    metrics.shortcutWidth = std::max(metrics.shortcutWidth, textWidth(dc, text.shortcut, DT_NOPREFIX));
}

void MenuLook::draw(HDC dc, const RECT& rect, const MenuItemLook& item, const MenuMetrics& metrics) const {
    const MenuItemParts parts = placeMenuItem({static_cast<int>(rect.left), static_cast<int>(rect.top),
                                               static_cast<int>(rect.right), static_cast<int>(rect.bottom)},
                                              metrics);
    const RECT gutter = rectOf(parts.gutter), mark = rectOf(parts.mark), arrow = rectOf(parts.arrow);
    drawBackground(dc, rect, gutter, item);
    if (item.isSeparator) return drawSeparator(dc, rect, parts.label.left);

    const COLORREF color = textColor(item);
    if (item.mark != MenuMark::none) drawMark(dc, gutter, mark, item, color);
    if (item.icon) drawIcon(dc, mark, item);
    if (item.opensMenu) {
        if (hasPart(POPUP_ARROW))
            DrawThemeBackground(m_theme, dc, POPUP_ARROW, item.disabled ? ARROW_DISABLED : ARROW_NORMAL,
                                &arrow, nullptr);
        else
            drawArrow(dc, arrow, color);
    }
    const SelectedObject selected(dc, font(item));
    const COLORREF formerColor = SetTextColor(dc, color);
    const int formerMode = SetBkMode(dc, TRANSPARENT);
    const MenuText text = splitMenuText(item.text);
    drawText(dc, text.label, parts.label, item.hidesMnemonic ? DT_HIDEPREFIX : 0);
    drawText(dc, text.shortcut, parts.shortcut, DT_RIGHT | DT_NOPREFIX);
    SetBkMode(dc, formerMode);
    SetTextColor(dc, formerColor);
}

void MenuLook::drawBackground(HDC dc, const RECT& rect, const RECT& gutter, const MenuItemLook& item) const {
    if (hasPart(POPUP_ITEM)) {
        FillRect(dc, &rect, GetSysColorBrush(COLOR_MENU));
        if (hasPart(POPUP_BACKGROUND)) DrawThemeBackground(m_theme, dc, POPUP_BACKGROUND, 0, &rect, nullptr);
        if (hasPart(POPUP_GUTTER)) DrawThemeBackground(m_theme, dc, POPUP_GUTTER, 0, &gutter, nullptr);
        if (item.selected)
            DrawThemeBackground(m_theme, dc, POPUP_ITEM, item.disabled ? DISABLED_HOT : HOT, &rect, nullptr);
        return;
    }
    const int selection = m_isFlat ? COLOR_MENUHILIGHT : COLOR_HIGHLIGHT;
    FillRect(dc, &rect, GetSysColorBrush(item.selected ? selection : COLOR_MENU));
    if (item.selected && m_isFlat) FrameRect(dc, &rect, GetSysColorBrush(COLOR_HIGHLIGHT));
}

void MenuLook::drawSeparator(HDC dc, const RECT& rect, int textLeft) const {
    RECT line = rect;
    if (hasPart(POPUP_SEPARATOR)) {
        if (hasPart(POPUP_GUTTER)) line.left = textLeft;
        // Some themes draw it at the top of what they are given.
        SIZE size{};
        GetThemePartSize(m_theme, dc, POPUP_SEPARATOR, 0, nullptr, TS_TRUE, &size);
        if (size.cy > 0 && size.cy < line.bottom - line.top) {
            line.top += (line.bottom - line.top - size.cy) / 2;
            line.bottom = line.top + size.cy;
        }
        DrawThemeBackground(m_theme, dc, POPUP_SEPARATOR, 0, &line, nullptr);
        return;
    }
    line.top = (rect.top + rect.bottom) / 2 - 1;
    line.bottom = line.top + (m_isFlat ? 1 : 2);
    InflateRect(&line, -MulDiv(1, m_dpi, USER_DEFAULT_SCREEN_DPI), 0);
    if (m_isFlat)
        FillRect(dc, &line, GetSysColorBrush(COLOR_BTNSHADOW));
    else
        DrawEdge(dc, &line, EDGE_ETCHED, BF_TOP);
}

// A mark of an item with an icon is told by what lies under the icon.
void MenuLook::drawMark(HDC dc, const RECT& gutter, const RECT& box, const MenuItemLook& item,
                        COLORREF color) const {
    const bool isBullet = item.mark == MenuMark::radio;
    if (hasPart(POPUP_CHECK)) {
        const int under = item.disabled ? UNDER_DISABLED : item.icon ? UNDER_ICON : UNDER_MARK;
        DrawThemeBackground(m_theme, dc, POPUP_CHECK_BACKGROUND, under, &gutter, nullptr);
        const int state = (isBullet ? BULLET_NORMAL : CHECK_NORMAL) + (item.disabled ? 1 : 0);
        if (!item.icon) DrawThemeBackground(m_theme, dc, POPUP_CHECK, state, &box, nullptr);
        return;
    }
    if (item.icon) {
        RECT frame = box;
        const int margin = MulDiv(2, m_dpi, USER_DEFAULT_SCREEN_DPI);
        InflateRect(&frame, margin, margin);
        const UniqueBrush brush(CreateSolidBrush(color));
        FrameRect(dc, &frame, brush.get());
    } else if (isBullet) {
        drawBullet(dc, box, color);
    } else {
        drawCheck(dc, box, color);
    }
}

void MenuLook::drawIcon(HDC dc, const RECT& box, const MenuItemLook& item) const {
    const int width = box.right - box.left, height = box.bottom - box.top;
    const ButtonIcon sized(static_cast<HICON>(CopyImage(item.icon, IMAGE_ICON, width, height, 0)));
    sized.draw(dc, box.left, box.top, item.disabled);
}

COLORREF MenuLook::textColor(const MenuItemLook& item) const {
    COLORREF color = 0;
    const int state = item.disabled   ? (item.selected ? DISABLED_HOT : DISABLED)
                      : item.selected ? HOT
                                      : NORMAL;
    if (hasPart(POPUP_ITEM) && SUCCEEDED(GetThemeColor(m_theme, POPUP_ITEM, state, TMT_TEXTCOLOR, &color)))
        return color;
    if (item.disabled) return GetSysColor(COLOR_GRAYTEXT);
    return GetSysColor(item.selected && !hasPart(POPUP_ITEM) ? COLOR_HIGHLIGHTTEXT : COLOR_MENUTEXT);
}
