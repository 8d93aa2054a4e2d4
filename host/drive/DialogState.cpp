#include "host/drive/DialogState.h"

#include <commctrl.h>

#include <algorithm>
#include <optional>
#include <span>
#include <sstream>
#include <vector>

#include "host/drive/GridWindow.h"
#include "host/drive/Items.h"
#include "host/drive/MessageBoxes.h"
#include "host/drive/WindowClass.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

namespace {

// Larger grids are left to the program.
constexpr uint64_t MOST_CELLS = 20'000;
constexpr wchar_t BETWEEN_NAMES = L'\x1f', BETWEEN_PATHS = L'\x1e';
constexpr std::wstring_view CELL = L"3cell";
constexpr std::wstring_view PLACE = L"0place";
constexpr std::wstring_view FOCUS = L"6focus";

bool hasStyle(HWND window, LONG_PTR style) { return GetWindowLongPtrW(window, GWL_STYLE) & style; }

std::wstring joined(const std::vector<int>& numbers) {
    std::wstring text;
    for (const int number : numbers) text += (text.empty() ? L"" : L" ") + std::to_wstring(number);
    return text;
}

std::vector<int> numbersIn(const std::wstring& text) {
    std::wistringstream stream(text);
    std::vector<int> numbers;
    for (int number; stream >> number;) numbers.push_back(number);
    return numbers;
}

// --- pages of a tab control

std::optional<std::wstring> page(HWND tab) {
    if (!hasWindowClass(tab, WC_TABCONTROLW)) return std::nullopt;
    return std::to_wstring(SendMessageW(tab, TCM_GETCURSEL, 0, 0));
}

// The control's owner turns the page when it hears of the selection.
void setPage(HWND tab, const std::wstring& number) {
    SendMessageW(tab, TCM_SETCURSEL, static_cast<WPARAM>(std::stoi(number)), 0);
    NMHDR notice{tab, static_cast<UINT_PTR>(GetDlgCtrlID(tab)), static_cast<UINT>(TCN_SELCHANGE)};
    SendMessageW(GetParent(tab), WM_NOTIFY, notice.idFrom, reinterpret_cast<LPARAM>(&notice));
}

// --- trees: their items by the texts from the root on

std::wstring pathOf(const TreeLook& tree, int index) {
    std::wstring path;
    for (const std::wstring& name : tree.path(index)) path += name + BETWEEN_NAMES;
    return path;
}

LPARAM handleOf(const Items& items, int index) { return static_cast<LPARAM>(items.name(index).asInteger()); }

template <class Work>
void forEachPath(HWND window, const std::wstring& paths, Work work) {
    std::wistringstream stream(paths);
    for (std::wstring path; std::getline(stream, path, BETWEEN_PATHS);) {
        const auto items = itemsOf(window);
        for (int at = 0; at < items->count(); ++at)
            if (pathOf(*items->tree(), at) == path) {
                work(handleOf(*items, at));
                break;
            }
    }
}

std::optional<std::wstring> openBranches(HWND window) {
    const auto items = itemsOf(window);
    if (!items || !items->tree()) return std::nullopt;
    std::wstring paths;
    for (int at = 0; at < items->count(); ++at)
        if (items->tree()->isOpen(at)) paths += pathOf(*items->tree(), at) + BETWEEN_PATHS;
    return paths;
}

// Those that the program opens by itself may have been closed.
void setOpenBranches(HWND tree, const std::wstring& paths) {
    const auto items = itemsOf(tree);
    const std::wstring meant = BETWEEN_PATHS + paths;
    for (int at = 0; at < items->count(); ++at) {
        const std::wstring path = BETWEEN_PATHS + pathOf(*items->tree(), at) + BETWEEN_PATHS;
        if (items->tree()->isOpen(at) && meant.find(path) == meant.npos)
            SendMessageW(tree, TVM_EXPAND, TVE_COLLAPSE, handleOf(*items, at));
    }
    forEachPath(tree, paths, [=](LPARAM item) { SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, item); });
}

// --- lists that were sorted by a click on a head: the column and its direction

std::optional<std::wstring> sortedBy(HWND list) {
    if (!hasWindowClass(list, WC_LISTVIEWW)) return std::nullopt;
    const std::vector<ColumnHead> heads = columnHeads(list);
    for (int column = 0; column < std::ssize(heads); ++column)
        if (heads[column].direction) return joined({column, heads[column].direction});
    return L"";
}

// The first click sorts up and the second one down.
void sortBy(HWND list, const std::wstring& column) {
    const std::vector<int> numbers = numbersIn(column);
    if (numbers.size() < 2) return;
    NMLISTVIEW notice{};
    notice.hdr = {list, static_cast<UINT_PTR>(GetDlgCtrlID(list)), static_cast<UINT>(LVN_COLUMNCLICK)};
    notice.iItem = -1;
    notice.iSubItem = numbers[0];
    for (int clicks = numbers[1] > 0 ? 1 : 2; clicks > 0; --clicks)
        SendMessageW(GetParent(list), WM_NOTIFY, notice.hdr.idFrom, reinterpret_cast<LPARAM>(&notice));
}

// --- texts and ticks

bool takesText(HWND window) {
    const std::wstring name = windowClass(window);
    if (name == L"Edit") return !hasStyle(window, ES_READONLY);
    return name == L"ComboBox" &&
           (GetWindowLongPtrW(window, GWL_STYLE) & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST;
}

std::optional<std::wstring> enteredText(HWND window) {
    if (!takesText(window)) return std::nullopt;
    return textOf(window);
}

void setText(HWND window, const std::wstring& text) { SetWindowTextW(window, text.c_str()); }

std::optional<std::wstring> check(HWND window) {
    const bool isBox = SendMessageW(window, WM_GETDLGCODE, 0, 0) & (DLGC_BUTTON | DLGC_RADIOBUTTON);
    const LONG_PTR kind = GetWindowLongPtrW(window, GWL_STYLE) & BS_TYPEMASK;
    if (!hasWindowClass(window, WC_BUTTONW) || !isBox || kind == BS_GROUPBOX || kind == BS_OWNERDRAW)
        return std::nullopt;
    return std::to_wstring(SendMessageW(window, BM_GETCHECK, 0, 0));
}

void setCheck(HWND window, const std::wstring& state) {
    SendMessageW(window, BM_SETCHECK, static_cast<WPARAM>(std::stoi(state)), 0);
}

// --- what is selected

std::optional<std::wstring> selected(HWND window) {
    const auto items = page(window) ? nullptr : itemsOf(window);
    if (!items) return std::nullopt;
    const std::vector<int> indexes = items->selected();
    if (!items->tree()) return joined(indexes);
    return indexes.empty() ? L"" : pathOf(*items->tree(), indexes.front());
}

void selectRows(HWND list, const std::vector<int>& rows) {
    LVITEMW item{};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&item));
    item.state = item.stateMask;
    for (const int row : rows) SendMessageW(list, LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&item));
}

void setSelected(HWND window, const std::wstring& entries) {
    const std::wstring name = windowClass(window);
    if (name == L"SysTreeView32")
        return forEachPath(window, entries,
                           [=](LPARAM item) { SendMessageW(window, TVM_SELECTITEM, TVGN_CARET, item); });
    const std::vector<int> indexes = numbersIn(entries);
    const auto first = static_cast<WPARAM>(indexes.empty() ? -1 : indexes.front());
    if (name == L"SysListView32") {
        selectRows(window, indexes);
    } else if (name == L"ComboBox") {
        SendMessageW(window, CB_SETCURSEL, first, 0);
    } else if (hasStyle(window, LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) {
        SendMessageW(window, LB_SETSEL, FALSE, -1);
        for (const int index : indexes) SendMessageW(window, LB_SETSEL, TRUE, index);
    } else {
        SendMessageW(window, LB_SETCURSEL, first, 0);
    }
}

// --- what is selected in a grid: the current cell, and each area with its kind

std::optional<std::wstring> gridSelection(HWND window) {
    const auto grid = gridOf(window);
    if (!grid) return std::nullopt;
    const GridTableLook table = grid->table();
    if (!table.hasCurrent) return L"";
    std::vector<uint32_t> numbers = {table.current.row, table.current.column};
    for (const GridArea& area : std::span(table.areas, table.areaCount))
        numbers.insert(numbers.end(), {area.kind, area.top, area.left, area.bottom, area.right});
    return joined({numbers.begin(), numbers.end()});
}

void setGridSelection(HWND window, const std::wstring& selection) {
    const std::vector<int> numbers = numbersIn(selection);
    if (numbers.size() < 2) return;
    const std::vector<uint32_t> at(numbers.begin(), numbers.end());
    std::vector<GridArea> areas;
    for (size_t i = 2; i + 5 <= at.size(); i += 5)
        areas.push_back({at[i + 1], at[i + 2], at[i + 3], at[i + 4], static_cast<GridArea::Kind>(at[i])});
    GridTableLook wanted;
    wanted.hasCurrent = true;
    wanted.current = {at[0], at[1]};
    wanted.areas = areas.data();
    wanted.areaCount = static_cast<uint32_t>(areas.size());
    gridOf(window)->select(wanted);
}

// --- how far it is scrolled

std::optional<std::wstring> firstInView(HWND window) {
    const std::wstring name = windowClass(window);
    const auto asked = [=](UINT message) { return std::to_wstring(SendMessageW(window, message, 0, 0)); };
    if (name == L"ListBox") return asked(LB_GETTOPINDEX);
    if (name == L"SysListView32") return asked(LVM_GETTOPINDEX);
    if (name == L"Edit") return asked(EM_GETFIRSTVISIBLELINE);
    if (name == L"SysTreeView32") {
        const auto items = itemsOf(window);
        const int first = items->tree()->first();
        return first < 0 ? L"" : pathOf(*items->tree(), first);
    }
    if (const auto grid = gridOf(window)) {
        const GridTableLook table = grid->table();
        return joined({static_cast<int>(table.first.row), static_cast<int>(table.first.column)});
    }
    return std::nullopt;
}

void scrollGrid(const GridWindow& grid, const std::vector<int>& to) {
    if (to.size() < 2) return;
    const GridTableLook table = grid.table();
    // From behind, the place becomes the first in view.
    grid.bringIntoView({table.rows, table.columns});
    grid.bringIntoView({static_cast<uint32_t>(to[0]), static_cast<uint32_t>(to[1])});
}

void setFirstInView(HWND window, const std::wstring& place) {
    const std::wstring name = windowClass(window);
    if (name == L"SysTreeView32")
        return forEachPath(window, place, [=](LPARAM item) {
            SendMessageW(window, TVM_SELECTITEM, TVGN_FIRSTVISIBLE, item);
        });
    const std::vector<int> numbers = numbersIn(place);
    if (numbers.empty()) return;
    if (name == L"ListBox") {
        SendMessageW(window, LB_SETTOPINDEX, static_cast<WPARAM>(numbers[0]), 0);
    } else if (name == L"SysListView32") {
        SendMessageW(window, LVM_ENSUREVISIBLE, SendMessageW(window, LVM_GETITEMCOUNT, 0, 0) - 1, FALSE);
        SendMessageW(window, LVM_ENSUREVISIBLE, static_cast<WPARAM>(numbers[0]), FALSE);
    } else if (name == L"Edit") {
        SendMessageW(window, EM_LINESCROLL, 0,
                     numbers[0] - SendMessageW(window, EM_GETFIRSTVISIBLELINE, 0, 0));
    } else if (const auto grid = gridOf(window)) {
        scrollGrid(*grid, numbers);
    }
}

struct Aspect {
    std::wstring_view name;
    std::optional<std::wstring> (*get)(HWND control);
    void (*set)(HWND control, const std::wstring& value);
};

constexpr Aspect ASPECTS[] = {
    {L"1page", page, setPage},
    {L"2open", openBranches, setOpenBranches},
    {L"2sorted", sortedBy, sortBy},
    {L"3check", check, setCheck},
    {L"4cells", gridSelection, setGridSelection},
    {L"4selected", selected, setSelected},
    {L"4text", enteredText, setText},
    {L"5first", firstInView, setFirstInView},
};

std::wstring keyOf(std::wstring_view what, int id) { return std::wstring(what) + L" " + std::to_wstring(id); }

void addCells(DialogState& state, HWND control) {
    const auto grid = gridOf(control);
    if (!grid) return;
    const GridTableLook table = grid->table();
    if (uint64_t{table.rows} * table.columns > MOST_CELLS) return;
    for (uint32_t row = 1; row <= table.rows; ++row)
        for (uint32_t column = 1; column <= table.columns; ++column)
            if (const auto cell = grid->cell({row, column}); cell && cell->isEditable)
                state[keyOf(CELL, GetDlgCtrlID(control)) + L" " + std::to_wstring(row) + L" " +
                      std::to_wstring(column)] = cell->text;
}

void setCell(int id, const std::vector<int>& place, const std::wstring& text) {
    lisp::Interpreter& lisp = host().lisp();
    const lisp::Root value(lisp, lisp.string(lispText(text)));
    const lisp::Value arguments[] = {lisp::Value::integer(id), lisp::Value::integer(place[0]),
                                     lisp::Value::integer(place[1]), lisp::Value::integer(-1), value};
    lisp.apply(u"wex_grid_setcell", arguments);
}

void setPlace(HWND dialog, const std::vector<int>& place) {
    if (place.size() == 4)
        SetWindowPos(dialog, nullptr, place[0], place[1], place[2], place[3], SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

DialogState dialogState(HWND dialog) {
    RECT rect{};
    GetWindowRect(dialog, &rect);
    DialogState state;
    state[std::wstring(PLACE)] =
        joined({static_cast<int>(rect.left), static_cast<int>(rect.top),
                static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top)});
    for (HWND control = GetWindow(dialog, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        const int id = GetDlgCtrlID(control);
        for (const Aspect& aspect : ASPECTS)
            if (const auto value = aspect.get(control)) state[keyOf(aspect.name, id)] = *value;
        addCells(state, control);
    }
    const HWND focus = GetFocus();
    if (focus && GetParent(focus) == dialog)
        state[std::wstring(FOCUS)] = std::to_wstring(GetDlgCtrlID(focus));
    return state;
}

DialogState changedSince(const DialogState& before, const DialogState& now) {
    DialogState changed;
    for (const auto& [key, value] : now) {
        const auto old = before.find(key);
        if (old == before.end() || old->second != value) changed[key] = value;
    }
    return changed;
}

void restoreState(HWND dialog, const DialogState& state) {
    for (const auto& [key, value] : state) {
        const std::wstring_view what = std::wstring_view(key).substr(0, key.find(L' '));
        const std::vector<int> numbers = numbersIn(key.substr(what.size()));
        if (what == PLACE) setPlace(dialog, numbersIn(value));
        if (what == FOCUS)
            SendMessageW(dialog, WM_NEXTDLGCTL,
                         reinterpret_cast<WPARAM>(GetDlgItem(dialog, std::stoi(value))), TRUE);
        if (numbers.empty()) continue;
        const HWND control = GetDlgItem(dialog, numbers[0]);
        if (!control) continue;
        if (what == CELL && numbers.size() == 3 && gridOf(control))
            setCell(numbers[0], {numbers[1], numbers[2]}, value);
        for (const Aspect& aspect : ASPECTS)
            // A control of another kind has come in its place.
            if (what == aspect.name && aspect.get(control)) aspect.set(control, value);
    }
}
