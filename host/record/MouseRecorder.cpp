#include "host/record/MouseRecorder.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "host/drive/Tile.h"
#include "host/drive/WindowClass.h"

namespace {

using Kind = RecordedStep::Kind;

POINT pointOf(const MSG& message) { return {GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)}; }

std::wstring pointText(POINT at) { return L" " + std::to_wstring(at.x) + L" " + std::to_wstring(at.y); }

// With a blank in front; empty where none is held.
std::wstring heldKeys(WPARAM keys) {
    const bool shift = keys & MK_SHIFT, control = keys & MK_CONTROL;
    if (shift && control) return L" \"SHIFT+CTRL\"";
    return shift ? L" \"SHIFT\"" : control ? L" \"CTRL\"" : L"";
}

std::wstring call(const wchar_t* function, const NamedTile& tile, const std::wstring& rest = {}) {
    return std::wstring(L"(") + function + L" " + tile.name + rest + L")";
}

bool isButton(const NamedTile& tile) { return hasWindowClass(tile.window, WC_BUTTONW); }
bool isEdit(HWND window) { return hasWindowClass(window, WC_EDITW); }
bool isHeader(HWND window) { return hasWindowClass(window, WC_HEADERW); }

// The column whose head lies there, not its border; -1 for none.
int headAt(HWND header, POINT at) {
    HDHITTESTINFO hit{};
    hit.pt = at;
    const auto column =
        static_cast<int>(SendMessageW(header, HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    return hit.flags & HHT_ONHEADER ? column : -1;
}

// What the entry's button or check box is worked by; null elsewhere.
const wchar_t* partFunction(HWND control, POINT at) {
    if (hasWindowClass(control, WC_TREEVIEWW)) {
        TVHITTESTINFO hit{};
        hit.pt = at;
        SendMessageW(control, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        return hit.flags & TVHT_ONITEMBUTTON      ? L"ui_expand"
               : hit.flags & TVHT_ONITEMSTATEICON ? L"ui_check"
                                                  : nullptr;
    }
    if (!hasWindowClass(control, WC_LISTVIEWW)) return nullptr;
    LVHITTESTINFO hit{};
    hit.pt = at;
    SendMessageW(control, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return hit.flags == LVHT_ONITEMSTATEICON ? L"ui_check" : nullptr;
}

// Whether the point lies on the entry itself and not beside it, on its line.
bool isOnEntry(HWND control, POINT at) {
    if (!hasWindowClass(control, WC_TREEVIEWW)) return true;
    TVHITTESTINFO hit{};
    hit.pt = at;
    SendMessageW(control, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return hit.flags & (TVHT_ONITEM | TVHT_ONITEMBUTTON | TVHT_ONITEMSTATEICON);
}

std::wstring placeText(GridPlace at) {
    return L" " + std::to_wstring(at.row) + L" " + std::to_wstring(at.column);
}

int caretOf(HWND list) { return static_cast<int>(SendMessageW(list, LB_GETCARETINDEX, 0, 0)); }

// The list of a combo box that is open, or a list box or a grid that has lost sight of the button.
bool marksUnderMouse(HWND list) {
    return IsWindow(list) &&
           (GetCapture() == list || (hasWindowClass(list, L"ComboLBox") && IsWindowVisible(list)));
}

// A press there only closes the list of a combo box. The list is a child of the desktop where it opens.
bool isBesideOpenList(HWND list, POINT at) {
    RECT client;
    return hasWindowClass(list, L"ComboLBox") && GetAncestor(list, GA_PARENT) == GetDesktopWindow() &&
           GetClientRect(list, &client) && !PtInRect(&client, at);
}

bool areSame(GridPlace a, GridPlace b) { return a.row == b.row && a.column == b.column; }

// The cell to which the mouse has dragged the newest area of the grid; nothing where there is none. Whole
// rows and columns are dragged by their heads.
std::optional<GridPlace> draggedTo(const GridTableLook& table) {
    if (!table.hasCurrent || !table.areaCount) return std::nullopt;
    const GridArea& area = table.areas[table.areaCount - 1];
    const auto beyond = [](uint32_t from, uint32_t first, uint32_t last) {
        return from == first ? last : first;
    };
    GridPlace to{beyond(table.current.row, area.top, area.bottom),
                 beyond(table.current.column, area.left, area.right)};
    if (area.kind == GridArea::table) return std::nullopt;
    if (area.kind == GridArea::rows) to.column = 0;
    if (area.kind == GridArea::columns) to.row = 0;
    return to;
}

}  // namespace

NamedTile MouseRecorder::cellEditorOf(const Press& press) {
    const HWND grid = press.tile.window;
    const int id = GetDlgCtrlID(press.window);
    const bool isEditor =
        gridOf(grid) && GetParent(grid) == press.dialog && childOf(grid, id) == press.window;
    if (!isEditor) return {};
    return {press.window, L"'(" + press.tile.name + L" " + std::to_wstring(id) + L")"};
}

void MouseRecorder::add(Press& press, Kind kind, std::wstring form) {
    press.step = m_journal.add(press.dialog, {kind, press.tile.name, std::move(form), {}});
}

// What was pressed first counts: that may have scrolled what lies under the mouse.
void MouseRecorder::addPress(Press& press, Kind kind, Forms forms, bool isDouble) {
    Recording& recording = m_journal.recording();
    if (!isDouble) {
        add(press, kind, forms.once);
        m_first = FirstPress{*press.step, std::move(forms)};
    } else if (m_wasApart) {
        add(press, Kind::other, std::move(forms.once));
    } else if (m_first && recording.isLast(m_first->step) &&
               recording.at(m_first->step).form == m_first->forms.once) {
        m_journal.setForm(m_first->step, m_first->forms.twice);
    } else {
        add(press, Kind::other, forms.isPick ? std::move(forms.twice) : std::move(forms.once));
    }
}

void MouseRecorder::dropUnfinished(HWND dialog) {
    for (const Press& press : m_down)
        if (press.dialog == dialog && press.step && !press.held.empty())
            m_journal.setForm(*press.step, press.held);
    std::erase_if(m_down, [=](const Press& press) { return press.dialog == dialog; });
}

void MouseRecorder::pressed(const MSG& message, HWND dialog) {
    dropUnfinished(dialog);
    Press press{
        dialog,      message.hwnd, tileOf(message.hwnd, dialog), pointOf(message), heldKeys(message.wParam),
        std::nullopt};
    if (!press.tile) return;
    const bool isDouble = message.message == WM_LBUTTONDBLCLK;
    if (!isDouble) {
        m_wasApart = false;
        m_first.reset();
    }
    const bool isRight = message.message == WM_RBUTTONDOWN || message.message == WM_RBUTTONDBLCLK;
    // The second press of a double one does nothing in a tree.
    const bool isLost = message.message == WM_RBUTTONDBLCLK && hasWindowClass(message.hwnd, WC_TREEVIEWW);
    if (isLost) return;
    if (isRight) return pressedRight(press);
    pressedLeft(press, isDouble);
    m_down.push_back(std::move(press));
}

void MouseRecorder::pressedLeft(Press& press, bool isDouble) {
    const HWND control = press.tile.window;
    const bool isCombo = hasWindowClass(control, WC_COMBOBOXW);
    if (isEdit(press.window)) {
        // Where the focus is already only the caret moves.
        if (gridOf(control))
            pressedCellEditor(press, isDouble);
        else if (GetFocus() != press.window)
            add(press, Kind::focus, call(L"ui_click", press.tile));
    } else if (isCombo) {
        pressedCombo(press);
    } else if (isHeader(press.window)) {
        press.entry = isDouble ? -1 : headAt(press.window, press.at);
    } else if (isButton(press.tile)) {
        press.held = call(L"ui_hold", press.tile);
        addPress(press, Kind::click, {call(L"ui_click", press.tile), call(L"ui_dblclick", press.tile)},
                 isDouble);
    } else if (gridOf(control)) {
        if (press.window == control) pressedCell(press, isDouble);
        // The field of an open cell with choices opens its list, or closes it.
        const bool isField = hasWindowClass(press.window, WC_COMBOBOXW);
        if (isField || isBesideOpenList(press.window, press.at))
            add(press, Kind::other, keyForm({.virtualKey = VK_F4}));
    } else if (const auto items = itemsOf(control)) {
        if (press.window == control) pressedEntry(press, *items, isDouble);
    } else {
        pressedPoint(press, press.tile, isDouble);
    }
}

void MouseRecorder::pressedPoint(Press& press, const NamedTile& tile, bool isDouble) {
    const std::wstring at = pointText(press.at) + press.keys;
    addPress(press, Kind::other, {call(L"ui_click", tile, at), call(L"ui_dblclick", tile, at)}, isDouble);
}

// A press beside the rows of a list control is lost; beside the entries of other lists it may move the focus.
void MouseRecorder::pressedEntry(Press& press, const Items& items, bool isDouble) {
    const HWND control = press.tile.window;
    if (isDouble && hasWindowClass(control, WC_TABCONTROLW)) return;
    press.entry = items.hit(press.at);
    if (press.entry < 0 || !isOnEntry(control, press.at)) {
        press.entry = -1;
        if (hasWindowClass(control, WC_LISTVIEWW) || hasWindowClass(control, WC_TABCONTROLW)) return;
        if (hasWindowClass(control, WC_LISTBOXW) && GetCapture() == control)
            press.anchor = static_cast<int>(SendMessageW(control, LB_GETANCHORINDEX, 0, 0));
        return pressedPoint(press, press.tile, isDouble && items.tree());
    }
    const std::wstring name = L" " + itemName(items, press.entry);
    if (const wchar_t* part = partFunction(control, press.at)) {
        addPress(press, Kind::other, {call(part, press.tile, name), call(part, press.tile, name + L" 2")},
                 isDouble);
        press.entry = -1;
        return;
    }
    const std::wstring item = name + press.keys;
    addPress(press, Kind::other,
             {call(L"ui_pick", press.tile, item), call(L"ui_dblclick", press.tile, item), true}, isDouble);
    if (isDouble) press.entry = -1;
    if (isDouble || items.tree()) return;
    // Where nothing lets go of it, a list box goes on as if the button were down, and takes the next press
    // wherever that is; and rows that were selected before stay so.
    press.held = call(L"ui_hold", press.tile, item);
}

void MouseRecorder::pressedCell(Press& press, bool isDouble) {
    press.cell = gridOf(press.tile.window)->hit(press.at);
    // Beside the cells it leaves the cell that was edited, and ends a drag whose end was lost.
    if (!press.cell && !isDouble) return pressedPoint(press, press.tile, isDouble);
    if (press.cell && press.cell->onBorder) press.cell.reset();
    if (!press.cell) return;
    const GridPlace at = press.cell->at;
    const bool isHead = at.row == 0 && at.column > 0;
    const std::wstring once =
        isHead ? call(L"ui_header", press.tile, L" " + std::to_wstring(at.column) + press.keys)
               : call(L"ui_pick", press.tile, placeText(at) + press.keys);
    addPress(press, Kind::other,
             {once, call(L"ui_dblclick", press.tile, placeText(at) + press.keys), !isHead}, isDouble);
    press.held = call(L"ui_hold", press.tile, pointText(press.at) + press.keys);  // as a list box
}

// What is typed into an open cell is recorded by its characters, and they go where the caret was put.
void MouseRecorder::pressedCellEditor(Press& press, bool isDouble) {
    if (const NamedTile editor = cellEditorOf(press)) pressedPoint(press, editor, isDouble);
}

// The list of the box is picked from when the button comes up. Of a box to type in only the arrow opens it.
void MouseRecorder::pressedCombo(Press& press) {
    const HWND control = press.tile.window;
    const bool isOpen = SendMessageW(control, CB_GETDROPPEDSTATE, 0, 0);
    if (press.window != control) {
        if (isBesideOpenList(press.window, press.at)) add(press, Kind::other, keyForm({.virtualKey = VK_F4}));
        return;
    }
    const bool ofChoices = (GetWindowLongW(control, GWL_STYLE) & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST;
    add(press, isOpen ? Kind::other : Kind::open,
        call(L"ui_click", press.tile, ofChoices ? std::wstring() : pointText(press.at)));
}

void MouseRecorder::pressedRight(const Press& press) {
    // What is chosen in the menu of an open cell is told, and so is what opens it.
    if (const NamedTile editor = cellEditorOf(press)) {
        m_journal.add(press.dialog, {Kind::other, press.tile.name, call(L"ui_rclick", editor), {}});
        return;
    }
    // A list that is open holds the mouse, and the press does nothing.
    if (isEdit(press.window) || hasWindowClass(press.window, L"ComboLBox")) return;
    std::wstring where;
    const HWND control = press.tile.window;
    if (const auto grid = press.window == control ? gridOf(control) : std::nullopt) {
        if (const auto cell = grid->hit(press.at)) where = placeText(cell->at);
    } else if (const auto items = press.window == control ? itemsOf(control) : nullptr) {
        const int entry = items->hit(press.at);
        if (entry >= 0) where = L" " + itemName(*items, entry);
    }
    m_journal.add(press.dialog, {Kind::other,
                                 press.tile.name,
                                 call(L"ui_rclick", press.tile, where.empty() ? where : where + press.keys),
                                 {}});
}

void MouseRecorder::released(const MSG& message, HWND dialog) {
    const auto found = std::find_if(m_down.begin(), m_down.end(),
                                    [&](const Press& down) { return down.window == message.hwnd; });
    if (message.message != WM_LBUTTONUP) return;
    const Press press = found == m_down.end() ? Press{} : *found;
    if (found != m_down.end()) m_down.erase(found);
    const POINT at = pointOf(message);
    if (hasWindowClass(message.hwnd, L"ComboLBox")) return releasedList(dialog, message);
    if (!press.window) return;
    if (press.anchor) return releasedMarking(press);
    RECT client;
    GetClientRect(press.window, &client);
    if (isHeader(press.window)) {
        if (press.entry >= 0 && headAt(press.window, at) == press.entry)
            m_journal.add(dialog,
                          {Kind::other,
                           press.tile.name,
                           call(L"ui_header", press.tile, L" " + std::to_wstring(press.entry) + press.keys),
                           {}});
    } else if (press.entry >= 0) {
        releasedEntry(press, at);
    } else if (press.cell) {
        releasedCell(press, at);
    } else if (press.step && isButton(press.tile) && !PtInRect(&client, at)) {
        m_journal.setForm(*press.step, press.held);
        m_journal.add(dialog,
                      {Kind::other, press.tile.name, call(L"ui_release", press.tile, pointText(at)), {}});
    }
}

// What the press has set off may have scrolled another entry under the mouse. That marks a list box only
// where the mouse moves.
void MouseRecorder::releasedEntry(const Press& press, POINT at) {
    const auto items = itemsOf(press.tile.window);
    const bool isBox = hasWindowClass(press.window, WC_LISTBOXW);
    const int entry = !items ? -1 : isBox ? caretOf(press.window) : items->hit(at);
    if (entry < 0 || entry == press.entry || !press.step || hasWindowClass(press.window, WC_TABCONTROLW))
        return;
    const std::wstring to = L" " + itemName(*items, entry) + press.keys;
    if (isBox && items->hit(press.at) != press.entry) {
        m_journal.setForm(*press.step, press.held);
        m_journal.add(press.dialog, {Kind::other, press.tile.name, call(L"ui_release", press.tile, to), {}});
        return;
    }
    m_journal.setForm(*press.step, call(L"ui_sweep", press.tile, L" " + itemName(*items, press.entry) + to));
}

// A list that has lost sight of the button goes on marking with the mouse, and scrolls with the time, until
// the next press ends that. What counts is where it has come to.
void MouseRecorder::releasedMarking(const Press& press) {
    const HWND list = press.tile.window;
    const auto items = itemsOf(list);
    const int entry = caretOf(list);
    if (!items || !press.step || entry < 0 || entry >= items->count()) return;
    const auto anchor = static_cast<int>(SendMessageW(list, LB_GETANCHORINDEX, 0, 0));
    const std::wstring to = L" " + itemName(*items, entry) + press.keys;
    std::wstring form = call(L"ui_release", press.tile, to);
    if (anchor != *press.anchor)
        form = anchor == entry ? call(L"ui_pick", press.tile, to)
                               : call(L"ui_sweep", press.tile, L" " + itemName(*items, anchor) + to);
    m_journal.setForm(*press.step, form);
}

void MouseRecorder::releasedCell(const Press& press, POINT at) {
    const auto grid = gridOf(press.tile.window);
    const auto cell = grid ? grid->hit(at) : std::nullopt;
    if (!cell || !press.step) return;
    if (!areSame(cell->at, press.cell->at)) {
        m_journal.setForm(*press.step, call(L"ui_pick", press.tile,
                                            placeText(press.cell->at) + placeText(cell->at) + press.keys));
    } else if (cell->opensChoices) {
        m_journal.add(press.dialog, {Kind::other, {}, keyForm({.virtualKey = VK_F4}), {}});
    }
}

// The list of a combo box takes the entry where the button comes up.
void MouseRecorder::releasedList(HWND dialog, const MSG& message) {
    const NamedTile tile = tileOf(message.hwnd, dialog);
    COMBOBOXINFO parts = {sizeof parts};
    if (!tile) return;
    // Of a grid's cell the combo box stands within the tile.
    HWND combo = tile.window;
    if (!hasWindowClass(combo, WC_COMBOBOXW))
        combo = GetAncestor(GetFocus(), GA_PARENT) == combo ? GetFocus() : nullptr;
    if (!combo || !GetComboBoxInfo(combo, &parts) || parts.hwndList != message.hwnd) return;
    const auto items = itemsOf(combo);
    const int entry = items->hit(pointOf(message));
    if (entry >= 0)
        m_journal.add(dialog,
                      {Kind::pick, tile.name, call(L"ui_pick", tile, L" " + itemName(*items, entry)), {}});
}

void MouseRecorder::moved(const MSG& message) {
    const bool isPopup = hasWindowClass(message.hwnd, L"ComboLBox");
    const bool marks = isPopup || hasWindowClass(message.hwnd, WC_LISTBOXW) || gridOf(message.hwnd);
    RECT client;
    if (!marks || !marksUnderMouse(message.hwnd) || !GetClientRect(message.hwnd, &client)) return;
    // The list of a combo box doesn't mind a mouse beside it.
    if (!isPopup || PtInRect(&client, pointOf(message))) m_hovered = message.hwnd;
}

void MouseRecorder::keyPressed(HWND dialog) {
    dropUnfinished(dialog);
    const HWND list = std::exchange(m_hovered, nullptr);
    if (!list || !marksUnderMouse(list)) return;
    const NamedTile tile = tileOf(list, dialog);
    if (!tile) return;
    std::wstring to;
    if (const auto grid = gridOf(list)) {
        if (const auto cell = draggedTo(grid->table())) to = placeText(*cell);
    } else if (const auto items = itemsOf(tile.window)) {
        const int entry = caretOf(list);
        if (entry >= 0 && entry < items->count()) to = L" " + itemName(*items, entry);
    }
    if (!to.empty()) m_journal.add(dialog, {Kind::other, tile.name, call(L"ui_hover", tile, to), {}});
}

// Lists, trees and grids only scroll, and what is picked in them later is scrolled into view by itself.
void MouseRecorder::wheelTurned(const MSG& message, HWND dialog) {
    const NamedTile tile = tileOf(message.hwnd, dialog);
    const HWND control = tile.window;
    if (!tile || hasWindowClass(message.hwnd, L"ComboLBox") || isEdit(message.hwnd) || gridOf(control))
        return;
    if (!hasWindowClass(control, WC_COMBOBOXW) && itemsOf(control)) return;
    const int notches = GET_WHEEL_DELTA_WPARAM(message.wParam) / WHEEL_DELTA;
    if (notches)
        m_journal.add(dialog,
                      {Kind::other, tile.name, call(L"ui_wheel", tile, L" " + std::to_wstring(notches)), {}});
}
