#include "host/record/TileNames.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>

#include "host/documents/Documents.h"
#include "host/drive/MessageBoxes.h"
#include "host/drive/Tile.h"
#include "host/drive/WindowClass.h"
#include "host/record/Recording.h"
#include "src/platform/base/GridQuery.h"

namespace {

// Of longer lists the texts aren't compared, but entries named by number.
constexpr int MOST_COMPARED = 2000;

// Controls with parts that the functions of sessions work through the control.
bool hasParts(HWND window) {
    const wchar_t* const KINDS[] = {WC_COMBOBOXW,   WC_LISTVIEWW,      WC_TREEVIEWW,
                                    WC_TABCONTROLW, GRID_WINDOW_CLASS, WC_LISTBOXW};
    return std::any_of(std::begin(KINDS), std::end(KINDS),
                       [=](const wchar_t* kind) { return hasWindowClass(window, kind); });
}

struct ComboSearch {
    HWND list;
    HWND combo = nullptr;
};

BOOL CALLBACK findCombo(HWND window, LPARAM l) noexcept {
    auto& search = *reinterpret_cast<ComboSearch*>(l);
    COMBOBOXINFO parts = {sizeof parts};
    if (!hasWindowClass(window, WC_COMBOBOXW) || !GetComboBoxInfo(window, &parts)) return TRUE;
    if (parts.hwndList == search.list) search.combo = window;
    return search.combo == nullptr;
}

// The list of a combo box is no child of it.
HWND comboOfList(HWND list, HWND dialog) {
    ComboSearch search{list};
    if (hasWindowClass(list, L"ComboLBox"))
        EnumChildWindows(dialog, &findCombo, reinterpret_cast<LPARAM>(&search));
    return search.combo;
}

bool isReachedById(HWND window) { return childOf(GetParent(window), GetDlgCtrlID(window)) == window; }

// Of a child of the dialog.
std::wstring tileName(HWND tile) {
    const std::wstring key = documents().nameOfWindow(tile);
    if (!key.empty()) return lispString(upperCase(key));
    return isReachedById(tile) ? std::to_wstring(GetDlgCtrlID(tile)) : std::wstring();
}

// The number of an item among its siblings where another one of them has its text; otherwise its text.
std::wstring stepTo(const Items& items, int index) {
    const int parent = items.tree()->parent(index);
    const std::wstring text = items.text(index);
    int place = 0, same = 0;
    for (int i = 0; i < items.count(); ++i) {
        if (items.tree()->parent(i) != parent) continue;
        place += i < index;
        same += items.text(i) == text;
    }
    return same == 1 ? lispString(text) : std::to_wstring(place);
}

std::wstring pathName(const Items& items, int index) {
    std::wstring path;
    for (int at = index; at >= 0; at = items.tree()->parent(at))
        path = stepTo(items, at) + (path.empty() ? L"" : L" ") + path;
    return L"'(" + path + L")";
}

}  // namespace

std::wstring upperCase(std::wstring text) {
    CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

NamedTile tileOf(HWND window, HWND dialog) {
    if (const HWND combo = comboOfList(window, dialog)) window = combo;
    std::wstring inner;  // the ids that lead on from the tile
    bool isReached = true;
    for (HWND at = window; at && at != dialog; at = GetParent(at)) {
        if (hasParts(at)) {
            window = at;
            inner.clear();
            isReached = true;
        }
        if (GetParent(at) == dialog) {
            if (!isReached) return {};
            const std::wstring name = tileName(at);
            return {window, inner.empty() || name.empty() ? name : L"'(" + name + inner + L")"};
        }
        isReached = isReached && isReachedById(at);
        inner = L" " + std::to_wstring(GetDlgCtrlID(at)) + inner;
    }
    return {};
}

std::wstring itemName(const Items& items, int index) {
    if (items.tree()) return pathName(items, index);
    const int count = items.count();
    const std::wstring text = count <= MOST_COMPARED ? items.text(index) : std::wstring();
    if (text.empty()) return std::to_wstring(index);
    for (int i = 0; i < count; ++i)
        if (i != index && items.text(i) == text) return std::to_wstring(index);
    return lispString(text);
}
