#include "host/drive/ClickFunctions.h"

#include <vector>

#include "host/drive/GridWindow.h"
#include "host/drive/Items.h"
#include "host/drive/Keyboard.h"
#include "host/drive/Mouse.h"
#include "host/drive/Player.h"
#include "host/drive/Tile.h"
#include "host/lisp/Interpreter.h"
#include "host/services/Texts.h"

namespace {

using lisp::Call;
using lisp::Value;

using Press = void (*)(const Spot&, WPARAM);

constexpr KeyStroke NO_KEYS = {.virtualKey = 0};
constexpr KeyStroke CONTROL = {.virtualKey = 0, .control = true};

WPARAM mouseKeys(const KeyStroke& keys) {
    return (keys.shift ? MK_SHIFT : 0) | (keys.control ? MK_CONTROL : 0);
}

// Some controls ask the message for the keys, and others the keyboard.
void pressWith(Press press, const Spot& spot, const KeyStroke& keys) {
    player().act(runningDialog(), [=] {
        if (keys != NO_KEYS) holdKeys(keys);
        press(spot, mouseKeys(keys));
    });
}

// How many arguments there are without the name of held keys, which is the last one; none of those before
// `first` is one.
size_t countBeforeKeys(Call& call, size_t first) {
    const size_t count = call.count();
    return count > first && call[count - 1].isString() ? count - 1 : count;
}

KeyStroke heldKeys(Call& call, size_t first) {
    const size_t at = countBeforeKeys(call, first);
    if (at == call.count()) return NO_KEYS;
    const std::optional<KeyStroke> keys = parseHeldKeys(wideText(call.text(at)));
    if (!keys || keys->alt) call.expected(at, "SHIFT, CTRL or SHIFT+CTRL");
    return *keys;
}

std::unique_ptr<Items> itemsIn(const Tile& tile) {
    auto items = itemsOf(tile.window());
    if (!items) tile.fail(L"it is no list");
    return items;
}

int indexOf(Call& call, const Tile& tile, const Items& items, Value item) {
    const int index = items.find(item);
    if (index < 0) tile.fail(L"it has no item " + wideText(call.lisp.print(item)));
    return index;
}

Spot entrySpot(Call& call, const Tile& tile, Value item, int column) {
    const auto items = itemsIn(tile);
    return items->show(indexOf(call, tile, *items, item), column);
}

// Of an integer of the call and the one behind it.
GridPlace placeOf(Call& call, size_t index) {
    return {static_cast<uint32_t>(call.integer(index)), static_cast<uint32_t>(call.integer(index + 1))};
}

Spot cellSpot(const Tile& tile, const GridWindow& grid, GridPlace place) {
    const std::wstring name = L"cell " + std::to_wstring(place.row) + L" " + std::to_wstring(place.column);
    if (!grid.cell(place)) tile.fail(L"it has no " + name);
    const std::optional<Spot> spot = grid.bringIntoView(place);
    if (!spot) tile.fail(name + L" can't be brought into view");
    return *spot;
}

// Where to press for "tile [x y]": that point of its client area, or the middle. A tile that has taken the
// mouse gets what is pressed beside it, too.
Spot pointOf(Call& call, const Tile& tile, bool mayLieOutside) {
    if (countBeforeKeys(call, 1) < 2) return middleOf(tile.window());
    const Spot spot{tile.window(), {call.integer(1), call.integer(2)}};
    if (!mayLieOutside && !isInView(spot) && GetCapture() != tile.window())
        tile.fail(L"point " + std::to_wstring(spot.point.x) + L" " + std::to_wstring(spot.point.y) +
                  L" lies outside of it");
    return spot;
}

// Where to press for "tile [item [column]]", "tile x y" of a tree or of what has no entries, or "tile [row
// column]" of a grid: the entry, or the middle of the tile where none is named.
Spot spotOf(Call& call, const Tile& tile, size_t count) {
    if (count < 2) return middleOf(tile.window());
    if (const auto grid = gridOf(tile.window())) return cellSpot(tile, *grid, placeOf(call, 1));
    const auto items = itemsOf(tile.window());
    const bool isPoint = count > 2 && call[1].isInteger() && call[2].isInteger();
    if (isPoint && (!items || items->tree())) return pointOf(call, tile, false);
    return entrySpot(call, tile, call[1], count > 2 ? call.integerOr(2, 0) : 0);
}

// (ui_click tile [x y] [keys])
Value clickPoint(Call& call) {
    const Tile tile(call, 0);
    tile.mustBeWorkable();
    pressWith(&click, pointOf(call, tile, false), heldKeys(call, 1));
    return Value::none();
}

// (ui_hold tile [x y] [keys]), (ui_hold list item [keys]); ui_release in the same way
template <Press press>
Value holdOrRelease(Call& call) {
    const Tile tile(call, 0);
    tile.mustBeWorkable();
    const bool isPoint = call.has(2) && call[1].isInteger() && call[2].isInteger();
    const bool isEntry = call.has(1) && !isPoint && itemsOf(tile.window());
    const KeyStroke keys = heldKeys(call, isEntry ? 2 : 1);
    pressWith(press, isEntry ? entrySpot(call, tile, call[1], 0) : pointOf(call, tile, press == &letGo),
              keys);
    return Value::none();
}

// (ui_dblclick tile [item [column]] [keys]); ui_rclick and ui_hover in the same way
template <Press press>
Value pressEntry(Call& call) {
    const Tile tile(call, 0);
    tile.mustBeWorkable();
    const KeyStroke keys = heldKeys(call, 2);
    pressWith(press, spotOf(call, tile, countBeforeKeys(call, 2)), keys);
    return Value::none();
}

// One after the other, with Ctrl held from the second one on.
void pickAll(Call& call, const Tile& tile) {
    const auto items = itemsIn(tile);
    std::vector<int> indexes;
    for (const Value item : lisp::Elements(call[1])) indexes.push_back(indexOf(call, tile, *items, item));
    pressWith(&click, items->show(indexes.front(), 0), NO_KEYS);
    for (size_t i = 1; i < indexes.size(); ++i) {
        player().steps().add(tile.dialog(), [tile, index = indexes[i]] {
            tile.mustBeWorkable();
            pressWith(&click, itemsIn(tile)->show(index, 0), CONTROL);
        });
    }
}

// The arrow that opens the list of a combo box; nothing where it is open, or always shows.
std::optional<Spot> closedArrow(HWND window) {
    COMBOBOXINFO parts = {sizeof parts};
    if (!GetComboBoxInfo(window, &parts) || IsRectEmpty(&parts.rcButton) ||
        SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0))
        return std::nullopt;
    const RECT& arrow = parts.rcButton;
    return Spot{window, {(arrow.left + arrow.right) / 2, (arrow.top + arrow.bottom) / 2}};
}

// The list is opened by a press of its own: what the box that is left does then comes of that.
void pickFromList(const Tile& tile, const Spot& arrow, int index) {
    pressWith(&click, arrow, NO_KEYS);
    player().steps().add(tile.dialog(), [=] {
        tile.mustBeWorkable();
        pressWith(&click, itemsIn(tile)->show(index, 0), NO_KEYS);
    });
}

// Two spots are reached in one movement if both are in view.
void sweepTile(const Tile& tile, const Spot& from, const Spot& to, const KeyStroke& keys) {
    if (!isInView(from) || !isInView(to)) tile.fail(L"its ends are not in view together");
    player().act(tile.dialog(), [=] {
        if (keys != NO_KEYS) holdKeys(keys);
        sweep(from, to, mouseKeys(keys));
    });
}

void sweepCells(Call& call, const Tile& tile, const GridWindow& grid, const KeyStroke& keys) {
    const GridPlace last = placeOf(call, 3);
    cellSpot(tile, grid, last);
    const Spot from = cellSpot(tile, grid, placeOf(call, 1));
    // The way to the first cell may have moved the last one.
    const std::optional<Spot> to = grid.spotOf(last);
    if (!to) tile.fail(L"its ends are not in view together");
    sweepTile(tile, from, *to, keys);
}

// Of the cell with choices that is open in the grid.
Spot choiceSpot(Call& call, const Tile& grid) {
    const HWND field = GetFocus();
    const auto choices = GetParent(field) == grid.window() ? itemsOf(field) : nullptr;
    if (!choices) grid.fail(L"no cell with choices is open in it");
    return choices->show(indexOf(call, grid, *choices, call[1]), 0);
}

// (ui_pick tile item [column] [keys]), (ui_pick grid row column [row column] [keys]), (ui_pick grid
// "choice"); a list of items is picked one by one, but in a tree it is the path of one.
Value pick(Call& call) {
    const Tile tile(call, 0);
    tile.mustBeWorkable();
    const KeyStroke keys = heldKeys(call, 2);
    const size_t count = countBeforeKeys(call, 2);
    const auto grid = gridOf(tile.window());
    const auto items = itemsOf(tile.window());
    if (grid && call[1].isString()) {
        pressWith(&click, choiceSpot(call, tile), NO_KEYS);
    } else if (grid && count > 3) {
        sweepCells(call, tile, *grid, keys);
    } else if (call[1].isCons() && items && !items->tree()) {
        pickAll(call, tile);
    } else if (const auto arrow = items ? closedArrow(tile.window()) : std::nullopt) {
        pickFromList(tile, *arrow, indexOf(call, tile, *items, call[1]));
    } else {
        pressWith(&click, spotOf(call, tile, count), keys);
    }
    return Value::none();
}

// (ui_sweep tile from to [keys])
Value sweepEntries(Call& call) {
    const Tile tile(call, 0);
    tile.mustBeWorkable();
    const KeyStroke keys = heldKeys(call, 3);
    const auto items = itemsIn(tile);
    const int from = indexOf(call, tile, *items, call[1]);
    const int to = indexOf(call, tile, *items, call[2]);
    items->bringIntoView(to, 0);
    items->bringIntoView(from, 0);
    sweepTile(tile, items->at(from, 0), items->at(to, 0), keys);
    return Value::none();
}

// (ui_expand tree item [clicks]), (ui_check tile item [clicks]): the part of the entry that `find` finds.
template <std::optional<Spot> (Items::*find)(int) const>
Value pressPart(Call& call, const wchar_t* part) {
    const Tile tile(call, 0);
    tile.mustBeWorkable();
    const auto items = itemsIn(tile);
    const int index = indexOf(call, tile, *items, call[1]);
    items->bringIntoView(index, 0);
    const std::optional<Spot> spot = ((*items).*find)(index);
    if (!spot) tile.fail(L"item " + wideText(call.lisp.print(call[1])) + L" has no " + part);
    const int clicks = call.integerOr(2, 1);
    if (clicks != 1 && clicks != 2) call.expected(2, "1 or 2 clicks");
    pressWith(clicks == 2 ? &doubleClick : &click, *spot, NO_KEYS);
    return Value::none();
}
Value expand(Call& call) { return pressPart<&Items::buttonOf>(call, L"button to open or close it"); }
Value check(Call& call) { return pressPart<&Items::checkBoxOf>(call, L"check box"); }

// (ui_header tile column [keys])
Value header(Call& call) {
    const Tile tile(call, 0);
    tile.mustBeWorkable();
    const int column = call.integer(1);
    const KeyStroke keys = heldKeys(call, 2);
    const auto grid = gridOf(tile.window());
    const std::optional<Spot> spot =
        grid ? cellSpot(tile, *grid, {0, static_cast<uint32_t>(column)}) : headerSpot(tile.window(), column);
    if (!spot) tile.fail(L"it has no header of column " + std::to_wstring(column));
    pressWith(&click, *spot, keys);
    return Value::none();
}

constexpr UiFunction FUNCTIONS[] = {
    {u"ui_click", &clickPoint, 1, 4},
    {u"ui_hold", &holdOrRelease<&hold>, 1, 4},
    {u"ui_release", &holdOrRelease<&letGo>, 1, 4},
    {u"ui_hover", &pressEntry<&hover>, 2, 4},
    {u"ui_dblclick", &pressEntry<&doubleClick>, 1, 4},
    {u"ui_rclick", &pressEntry<&rightClick>, 1, 4},
    {u"ui_pick", &pick, 2, 6},
    {u"ui_sweep", &sweepEntries, 3, 4},
    {u"ui_expand", &expand, 2, 3},
    {u"ui_check", &check, 2, 3},
    {u"ui_header", &header, 2, 3},
};

}  // namespace

std::span<const UiFunction> clickFunctions() { return FUNCTIONS; }
