#include "host/drive/GridFunctions.h"

#include "host/drive/Keyboard.h"
#include "host/drive/Pairs.h"
#include "host/drive/Player.h"
#include "host/services/Texts.h"

namespace {

lisp::Value number(uint32_t value) { return lisp::Value::integer(static_cast<int32_t>(value)); }

lisp::Value choiceList(lisp::Interpreter& lisp, std::wstring_view choices) {
    lisp::ListBuilder list(lisp);
    while (!choices.empty()) {
        const size_t end = choices.find(L'\n');
        list.add(lisp.string(lispText(std::wstring(choices.substr(0, end)))));
        choices.remove_prefix(end == choices.npos ? choices.size() : end + 1);
    }
    return list.list();
}

// Where what is typed goes; the grid takes the focus as by the Tab key where it hasn't got it.
HWND focusWithin(const Tile& tile) {
    const HWND grid = tile.window();
    const auto hasFocus = [=] { return GetFocus() == grid || IsChild(grid, GetFocus()); };
    if (!hasFocus()) SendMessageW(tile.dialog(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(grid), TRUE);
    if (!hasFocus()) tile.fail(L"it doesn't take the focus");
    return GetFocus();
}

}  // namespace

lisp::Value gridRows(lisp::Interpreter& lisp, const GridWindow& grid, int first, int end) {
    lisp::ListBuilder list(lisp);
    const uint32_t columns = grid.table().columns;
    for (auto row = static_cast<uint32_t>(first) + 1; row <= static_cast<uint32_t>(end); ++row) {
        std::wstring line;
        for (uint32_t column = 0; column <= columns; ++column) {
            if (column > 0) line += L'\t';
            if (const auto cell = grid.cell({row, column})) line += cell->text;
        }
        list.add(lisp.string(lispText(line)));
    }
    return list.list();
}

lisp::Value cellLook(lisp::Call& call) {
    const Tile tile(call, 0);
    const int row = call.integer(1);
    const int column = call.integer(2);
    const auto grid = gridOf(tile.window());
    if (!grid) tile.fail(L"it is no grid");
    const auto cell = grid->cell({static_cast<uint32_t>(row), static_cast<uint32_t>(column)});
    if (!cell) tile.fail(L"it has no cell " + std::to_wstring(row) + L" " + std::to_wstring(column));
    Pairs look(call.lisp);
    look.add(u"text", call.lisp.string(lispText(cell->text)));
    look.add(u"type", lisp::Value::integer(cell->controlType));
    look.add(u"readonly", lisp::Value::truth(cell->readOnly));
    look.add(u"edited", lisp::Value::truth(cell->isEdited));
    look.add(u"merge", lisp::Value::integer(cell->merge));
    look.add(u"wrap", lisp::Value::truth(cell->wraps));
    look.add(u"align", lisp::Value::integer(cell->alignment));
    look.add(u"interior", number(cell->interior));
    look.add(u"color", number(cell->textColor));
    look.add(u"choices", choiceList(call.lisp, cell->choices));
    look.add(u"places", lisp::Value::integer(cell->places));
    look.add(u"width", lisp::Value::integer(cell->width));
    look.add(u"height", lisp::Value::integer(cell->height));
    return look.list();
}

lisp::Value placeList(lisp::Interpreter& lisp, GridPlace place) {
    return lisp.list({number(place.row), number(place.column)});
}

lisp::Value selectedRanges(lisp::Interpreter& lisp, const GridTableLook& table) {
    lisp::ListBuilder list(lisp);
    for (uint32_t i = 0; i < table.areaCount; ++i) {
        const GridArea& area = table.areas[i];
        list.add(lisp.list({number(area.top), number(area.left), number(area.bottom), number(area.right)}));
    }
    return list.list();
}

// The first character opens the cell's editor, which then has the focus and takes the others. In an editor
// that is open already they take the place of what stood there.
void typeIntoGrid(const Tile& tile, const std::wstring& text) {
    const HWND focus = focusWithin(tile);
    const bool editorIsOpen = focus != tile.window();
    if (editorIsOpen) PostMessageW(focus, EM_SETSEL, 0, -1);
    if (text.empty()) return pressKey(focus, {VK_DELETE});
    typeText(focus, text.substr(0, 1));
    player().steps().add(tile.dialog(), [rest = text.substr(1)] {
        if (const HWND now = GetFocus()) typeText(now, rest);
    });
}
