#include "host/drive/UiFunctions.h"

#include <algorithm>
#include <span>
#include <utility>

#include "host/drive/ClickFunctions.h"
#include "host/drive/GridFunctions.h"
#include "host/drive/Items.h"
#include "host/drive/Keyboard.h"
#include "host/drive/Look.h"
#include "host/drive/Menus.h"
#include "host/drive/MessageBoxes.h"
#include "host/drive/Mouse.h"
#include "host/drive/PictureFunctions.h"
#include "host/drive/Player.h"
#include "host/drive/RealInput.h"
#include "host/drive/ScrollFunctions.h"
#include "host/drive/Sizing.h"
#include "host/drive/Tile.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

using lisp::Call;
using lisp::Value;

std::wstring wideArgument(Call& call, size_t index) { return wideText(call.text(index)); }

Value text(Call& call, const std::wstring& text) { return call.lisp.string(lispText(text)); }

// (ui_session "NAME" '(form ...)); nil for the main frame
Value session(Call& call) {
    const std::wstring name = call[0].isNil() ? L"" : wideArgument(call, 0);
    player().queue(std::make_unique<Session>(call.lisp, name, call.list(1)));
    return Value::none();
}

// The window that takes the characters: a combo box has an edit box inside.
HWND typingWindow(const Tile& tile) {
    COMBOBOXINFO parts = {sizeof parts};
    const bool isCombo = GetComboBoxInfo(tile.window(), &parts) && parts.hwndItem;
    return isCombo ? parts.hwndItem : tile.window();
}

// What the characters take the place of; all as a person marks it.
struct TextRange {
    WPARAM from = 0;
    LPARAM to = -1;
};

void retype(HWND window, TextRange range, const std::wstring& characters) {
    PostMessageW(window, EM_SETSEL, range.from, range.to);
    if (characters.empty()) {
        pressKey(window, {VK_DELETE});
    } else {
        typeText(window, characters);
    }
}

void typeInto(const Tile& tile, TextRange range, const std::wstring& characters) {
    if (gridOf(tile.window())) return typeIntoGrid(tile, characters);
    const HWND window = typingWindow(tile);
    // A click where it has the focus already would be the second half of a double click.
    if (GetFocus() == window) return retype(window, range, characters);
    click(middleOf(window), 0);
    player().steps().add(tile.dialog(), [=] {
        tile.mustBeWorkable();
        retype(window, range, characters);
    });
}

// (ui_type tile "text" [from to]): as if the person had marked what stood there, or a part of it.
Value type(Call& call) {
    const Tile tile(call, 0);
    tile.mustBeWorkable();
    TextRange range;
    if (call.has(2)) range = {static_cast<WPARAM>(call.integer(2)), call.integer(3)};
    player().act(tile.dialog(),
                 [=, characters = wideArgument(call, 1)] { typeInto(tile, range, characters); });
    return Value::none();
}

// Has `work` done with the window that gets what comes from the keyboard: that of the tile of argument 1,
// which takes the focus as by the Tab key (a button becomes the default one, the text of an edit box is
// selected); without one, where the focus is. Where nothing has it, the keyboard reaches nobody.
template <class Work>
void atKeyboard(Call& call, Work work) {
    const HWND dialog = runningDialog();
    if (!call.has(1)) {
        player().act(dialog, [=] {
            if (const HWND focus = GetFocus()) work(focus);
        });
        return;
    }
    const Tile tile(call, 1);
    tile.mustBeWorkable();
    player().act(dialog, [=] {
        const HWND window = typingWindow(tile);
        if (GetFocus() != window) SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window), TRUE);
        work(window);
    });
}

// (ui_key "ENTER" [tile])
Value key(Call& call) {
    const std::optional<KeyStroke> stroke = parseKeyStroke(wideArgument(call, 0));
    if (!stroke) call.expected(0, "the name of a key");
    atKeyboard(call, [=](HWND window) { pressKey(window, *stroke); });
    return Value::none();
}

// (ui_char "text" [tile])
Value character(Call& call) {
    const std::wstring characters = wideArgument(call, 0);
    atKeyboard(call, [=](HWND window) { typeText(window, characters); });
    return Value::none();
}

// (ui_close)
Value close(Call&) {
    const HWND dialog = runningDialog();
    player().act(dialog, [=] { Player::pressCloseBox(dialog); });
    return Value::none();
}

// (ui_size width height): the whole window, in pixels.
Value size(Call& call) {
    const int width = call.integer(0);
    const int height = call.integer(1);
    SetWindowPos(runningDialog(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return Value::none();
}

// (ui_drag "GRIP" right down)
Value drag(Call& call) {
    const Border* border = borderNamed(wideArgument(call, 0));
    if (!border) call.expected(0, "LEFT, TOP, RIGHT, BOTTOM or GRIP");
    const HWND dialog = runningDialog();
    if (!dragBorder(dialog, *border, {call.integer(1), call.integer(2)}))
        throw lisp::Error(lispText(L"dialog \"" + textOf(dialog) + L"\" can't be sized there"));
    return Value::none();
}

// (ui_input "REAL"), (ui_input "POSTED")
Value input(Call& call) {
    const std::wstring kind = wideArgument(call, 0);
    if (kind != L"REAL" && kind != L"POSTED") call.expected(0, "REAL or POSTED");
    useRealInput(kind == L"REAL");
    return Value::none();
}

// (ui_wait form): evaluating the whole call again asks the form again.
Value wait(Call& call) {
    if (call[0].isNil()) player().repeatForm();
    return call[0];
}

// (ui_text tile)
Value textOfTile(Call& call) { return text(call, textOf(Tile(call, 0).window())); }

// The items that a call wants of so many: the first one and the one behind the last.
std::pair<int, int> wantedItems(Call& call, int count) {
    const int first = call.has(1) ? std::clamp(call.integer(1), 0, count) : 0;
    const int beyond = count - first;
    return {first, first + (call.has(2) ? std::clamp(call.integer(2), 0, beyond) : beyond)};
}

// (ui_items tile [first [count]])
Value items(Call& call) {
    const Tile tile(call, 0);
    if (const auto grid = gridOf(tile.window())) {
        const auto [first, end] = wantedItems(call, static_cast<int>(grid->table().rows));
        return gridRows(call.lisp, *grid, first, end);
    }
    const auto items = itemsOf(tile.window());
    if (!items) tile.fail(L"it is no list");
    lisp::ListBuilder list(call.lisp);
    const auto [first, end] = wantedItems(call, items->count());
    for (int i = first; i < end; ++i)
        if (const auto line = items->line(i)) list.add(text(call, *line));
    return list.list();
}

// (ui_look [tile])
Value look(Call& call) {
    return call.has(0) ? lookOf(call.lisp, Tile(call, 0)) : lookOf(call.lisp, runningDialog());
}

// (ui_pixel tile x y)
Value pixel(Call& call) { return pixelOf(Tile(call, 0), call.integer(1), call.integer(2)); }

// (ui_box)
Value box(Call& call) { return lookOf(call.lisp, player().lastBox()); }

// (ui_answer "BUTTON" ["text"])
Value answer(Call& call) {
    const int button = boxButton(wideArgument(call, 0));
    if (!button) call.expected(0, "OK, CANCEL, YES, NO, RETRY, ABORT or IGNORE");
    player().answerNextBox({button, call.has(1) ? wideArgument(call, 1) : std::wstring()});
    return Value::none();
}

// (ui_columns tile): title, width and direction of each.
Value columns(Call& call) {
    lisp::ListBuilder list(call.lisp);
    for (const ColumnHead& head : columnHeads(Tile(call, 0).window()))
        list.add(call.lisp.list(
            {text(call, head.title), Value::integer(head.width), Value::integer(head.direction)}));
    return list.list();
}

// (ui_title)
Value title(Call& call) { return text(call, textOf(runningDialog())); }

// (ui_dialogs): titles, outermost first.
Value dialogs(Call& call) {
    std::vector<HWND> found;
    const auto gather = [](HWND window, LPARAM list) noexcept -> BOOL {
        if (isSystemDialog(window) && IsWindowVisible(window)) {
            reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        }
        return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), gather, reinterpret_cast<LPARAM>(&found));
    const auto depth = [](HWND window) {
        int owners = 0;
        for (HWND at = window; (at = GetWindow(at, GW_OWNER)) != nullptr;) ++owners;
        return owners;
    };
    std::stable_sort(found.begin(), found.end(), [&](HWND a, HWND b) { return depth(a) < depth(b); });
    lisp::ListBuilder list(call.lisp);
    for (const HWND window : found) list.add(text(call, textOf(window)));
    return list.list();
}

Value texts(Call& call, const std::vector<std::wstring>& lines) {
    lisp::ListBuilder list(call.lisp);
    for (const std::wstring& line : lines) list.add(text(call, line));
    return list.list();
}

// (ui_alerts), (ui_warnings): what was said since the last call.
Value alerts(Call& call) { return texts(call, host().alerts().take()); }

Value warnings(Call& call) { return texts(call, host().warnings().take()); }

constexpr UiFunction FUNCTIONS[] = {
    {u"ui_session", &session, 2, 2}, {u"ui_type", &type, 2, 4},       {u"ui_key", &key, 1, 2},
    {u"ui_char", &character, 1, 2},  {u"ui_close", &close, 0, 0},     {u"ui_size", &size, 2, 2},
    {u"ui_drag", &drag, 3, 3},       {u"ui_wait", &wait, 1, 1},       {u"ui_text", &textOfTile, 1, 1},
    {u"ui_items", &items, 1, 3},     {u"ui_look", &look, 0, 1},       {u"ui_pixel", &pixel, 3, 3},
    {u"ui_box", &box, 0, 0},         {u"ui_cell", &cellLook, 3, 3},   {u"ui_columns", &columns, 1, 1},
    {u"ui_title", &title, 0, 0},     {u"ui_dialogs", &dialogs, 0, 0}, {u"ui_alerts", &alerts, 0, 0},
    {u"ui_answer", &answer, 1, 2},   {u"ui_input", &input, 1, 1},     {u"ui_warnings", &warnings, 0, 0},
};

}  // namespace

void defineUiFunctions(lisp::Interpreter& lisp) {
    for (const std::span<const UiFunction> table : {std::span<const UiFunction>(FUNCTIONS), clickFunctions(),
                                                    scrollFunctions(), menuFunctions(), pictureFunctions()}) {
        for (const UiFunction& function : table)
            lisp.defineNative(function.name, function.function, nullptr, function.minimum, function.maximum);
    }
}
