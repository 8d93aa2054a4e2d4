// How the items of a menu look, drawn on a picture.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "src/platform/buttons/BCMenu.h"
#include "tests/support/Canvas.h"

namespace {

class DrawnItem {
  public:
    explicit DrawnItem(const MenuItemLook& item, bool highContrast = false) {
        MenuLook look(GetDesktopWindow(), highContrast);
        MenuMetrics metrics = look.metrics();
        look.measure(item, metrics);
        const int width = menuItemWidth(metrics), height = menuItemHeight(metrics);
        parts = placeMenuItem({0, 0, width, height}, metrics);
        m_canvas = std::make_unique<Canvas>(width, height);
        look.draw(m_canvas->dc(), {0, 0, width, height}, item, metrics);
    }

    // How many pixels there are of a box that `is` tells of.
    template <class Is>
    int count(const MenuBox& box, Is is) const {
        int count = 0;
        for (int y = box.top; y < box.bottom; ++y)
            for (int x = box.left; x < box.right; ++x) count += is(at(x, y));
        return count;
    }
    // Those that have another color than the left upper corner.
    int ink(const MenuBox& box) const {
        return count(box, [&](COLORREF color) { return color != ground(box); });
    }
    COLORREF ground(const MenuBox& box) const { return at(box.left, box.top); }
    COLORREF at(int x, int y) const { return m_canvas->at(x, y); }

    MenuItemParts parts;

  private:
    std::unique_ptr<Canvas> m_canvas;
};

MenuItemLook item() {
    MenuItemLook look;
    look.text = L"&Copy\tCtrl+C";
    return look;
}

TEST(MenuItemLook, EachPartIsDrawnInItsPlaceAndNoOther) {
    const DrawnItem plain(item());
    EXPECT_GT(plain.ink(plain.parts.label), 0);
    EXPECT_GT(plain.ink(plain.parts.shortcut), 0);
    EXPECT_EQ(plain.ink(plain.parts.arrow), 0);
    EXPECT_EQ(plain.ink(plain.parts.mark), 0);

    MenuItemLook full = item();
    full.mark = MenuMark::check;
    full.opensMenu = true;
    const DrawnItem marked(full);
    EXPECT_GT(marked.ink(marked.parts.mark), 0);
    EXPECT_GT(marked.ink(marked.parts.arrow), 0);
    full.mark = MenuMark::radio;
    const DrawnItem round(full);
    EXPECT_GT(round.ink(round.parts.mark), 0);
}

TEST(MenuItemLook, StatesDiffer) {
    const DrawnItem plain(item());
    MenuItemLook look = item();
    look.selected = true;
    const DrawnItem selected(look);
    const MenuBox& label = plain.parts.label;
    EXPECT_NE(selected.at(label.left - 2, label.top + 2), plain.at(label.left - 2, label.top + 2));
    look = item();
    look.isDefault = true;
    const DrawnItem bold(look);
    EXPECT_GT(bold.ink(bold.parts.label), plain.ink(label));
}

TEST(MenuItemLook, AnIconFillsItsSquareAndADisabledOneIsGrey) {
    MenuItemLook look = item();
    look.icon = LoadIconW(nullptr, IDI_ERROR);
    const DrawnItem shown(look);
    look.disabled = true;
    const DrawnItem greyed(look);
    const MenuBox& box = shown.parts.mark;
    const int x = box.left + box.width() / 4, y = box.top + box.height() / 2;
    const auto redness = [](COLORREF color) { return GetRValue(color) - GetBValue(color); };
    EXPECT_GT(redness(shown.at(x, y)), 60);
    EXPECT_LT(std::abs(redness(greyed.at(x, y))), 30);
}

TEST(MenuItemLook, ASeparatorLiesInTheMiddle) {
    MenuItemLook look;
    look.isSeparator = true;
    const DrawnItem line(look);
    const int x = line.parts.label.left + 2, height = line.parts.gutter.bottom;
    std::vector<int> inked;
    for (int y = 0; y < height; ++y)
        if (line.at(x, y) != line.at(x, 0) || line.at(x, y) != line.at(x, height - 1)) inked.push_back(y);
    ASSERT_FALSE(inked.empty());
    EXPECT_NEAR(inked.front() + inked.back(), height - 1, 2);
}

// Under every theme, since what it draws might not stand out from the colors that the person has chosen.
TEST(MenuItemLook, HighContrastHasTheSystemsColorsAlone) {
    BOOL flat = FALSE;
    SystemParametersInfoW(SPI_GETFLATMENU, 0, &flat, 0);
    MenuItemLook look = item();
    look.mark = MenuMark::check;
    look.opensMenu = true;
    for (const bool disabled : {false, true}) {
        for (const bool selected : {false, true}) {
            look.disabled = disabled;
            look.selected = selected;
            const DrawnItem drawn(look, true);
            const MenuItemParts& parts = drawn.parts;
            const int ground = !selected ? COLOR_MENU : flat ? COLOR_MENUHILIGHT : COLOR_HIGHLIGHT;
            const int ink = disabled ? COLOR_GRAYTEXT : selected ? COLOR_HIGHLIGHTTEXT : COLOR_MENUTEXT;
            for (const MenuBox* part : {&parts.label, &parts.mark, &parts.arrow}) {
                EXPECT_EQ(drawn.ground(*part), GetSysColor(ground)) << disabled << selected;
                const auto isInk = [&](COLORREF color) { return color == GetSysColor(ink); };
                EXPECT_GT(drawn.count(*part, isInk), 0) << disabled << selected;
            }
        }
    }
}

TEST(BCMenu, AssistiveProgramsReadTheTextsAndStates) {
    BCMenu menu;
    menu.add(7, L"&Copy\tCtrl+C", BCMenu::DISABLED);
    menu.add(8, L"&Top", BCMenu::RADIO | BCMenu::DEFAULT);
    menu.addSeparator();
    BCMenu& below = menu.addMenu(L"&View");
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_DATA | MIIM_STATE | MIIM_FTYPE | MIIM_SUBMENU;
    ASSERT_TRUE(GetMenuItemInfoW(menu.handle(), 0, TRUE, &info));
    const auto* text = reinterpret_cast<const MSAAMENUINFO*>(info.dwItemData);
    EXPECT_EQ(text->dwMSAASignature, static_cast<DWORD>(MSAA_MENU_SIG));
    EXPECT_EQ(std::wstring(text->pszWText, text->cchWText), L"&Copy\tCtrl+C");
    EXPECT_TRUE(info.fState & MFS_DISABLED);
    ASSERT_TRUE(GetMenuItemInfoW(menu.handle(), 1, TRUE, &info));
    EXPECT_TRUE(info.fState & MFS_CHECKED && info.fState & MFS_DEFAULT && info.fType & MFT_RADIOCHECK);
    ASSERT_TRUE(GetMenuItemInfoW(menu.handle(), 3, TRUE, &info));
    EXPECT_EQ(info.hSubMenu, below.handle());
}

}  // namespace
