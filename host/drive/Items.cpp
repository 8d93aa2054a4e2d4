#include "host/drive/Items.h"

#include <commctrl.h>

#include <algorithm>

#include "host/drive/ControlItems.h"
#include "host/drive/TreeItems.h"
#include "host/drive/WindowClass.h"
#include "host/services/Texts.h"

namespace {

HWND headerOf(HWND listView) { return reinterpret_cast<HWND>(SendMessageW(listView, LVM_GETHEADER, 0, 0)); }

class ListBoxItems : public ControlItems {
  public:
    using ControlItems::ControlItems;

    int count() const override { return static_cast<int>(send(LB_GETCOUNT)); }
    std::wstring text(int index) const override {
        std::wstring buffer(std::max<LRESULT>(send(LB_GETTEXTLEN, index), 0) + 1, L'\0');
        send(LB_GETTEXT, index, buffer.data());
        return upToNul(buffer);
    }
    std::vector<int> selected() const override {
        std::vector<int> found;
        for (int i = 0; i < count(); ++i) {
            if (send(LB_GETSEL, i) > 0) found.push_back(i);
        }
        return found;
    }
    void bringIntoView(int index, int) const override {
        RECT rect{};
        send(LB_GETITEMRECT, index, &rect);
        RECT client;
        GetClientRect(m_window, &client);
        if (rect.top < 0 || rect.bottom > client.bottom) send(LB_SETTOPINDEX, index);
    }
    Spot at(int index, int) const override {
        RECT rect{};
        send(LB_GETITEMRECT, index, &rect);
        return middle(rect);
    }
    int hit(POINT at) const override {
        RECT client;
        GetClientRect(m_window, &client);
        for (int i = static_cast<int>(send(LB_GETTOPINDEX)); PtInRect(&client, at) && i < count(); ++i) {
            RECT rect{};
            send(LB_GETITEMRECT, i, &rect);
            if (PtInRect(&rect, at)) return i;
        }
        return -1;
    }
};

class ComboBoxItems : public ControlItems {
  public:
    using ControlItems::ControlItems;

    int count() const override { return static_cast<int>(send(CB_GETCOUNT)); }
    std::wstring text(int index) const override {
        std::wstring buffer(std::max<LRESULT>(send(CB_GETLBTEXTLEN, index), 0) + 1, L'\0');
        send(CB_GETLBTEXT, index, buffer.data());
        return upToNul(buffer);
    }
    std::vector<int> selected() const override {
        const auto index = static_cast<int>(send(CB_GETCURSEL));
        return index < 0 ? std::vector<int>() : std::vector{index};
    }
    void bringIntoView(int index, int) const override {
        const bool dropsDown = (GetWindowLongW(m_window, GWL_STYLE) & 3) != CBS_SIMPLE;
        if (dropsDown) {
            SetFocus(m_window);
            send(CB_SHOWDROPDOWN, TRUE);
        }
        list().bringIntoView(index, 0);
    }
    Spot at(int index, int) const override { return list().at(index, 0); }
    // Of the list's client area.
    int hit(POINT at) const override { return list().hit(at); }

  private:
    ListBoxItems list() const {
        COMBOBOXINFO parts = {sizeof parts};
        GetComboBoxInfo(m_window, &parts);
        return ListBoxItems(parts.hwndList);
    }
};

// Scrolls a list view so that it shows a column of those edges, in its client pixels.
void scrollAcross(HWND list, const RECT& column) {
    RECT client;
    GetClientRect(list, &client);
    const LONG beyond =
        column.left < 0 ? column.left : std::clamp(column.right - client.right, 0L, column.left);
    if (beyond) SendMessageW(list, LVM_SCROLL, beyond, 0);
}

class ListViewItems : public ControlItems {
  public:
    using ControlItems::ControlItems;

    int count() const override { return static_cast<int>(send(LVM_GETITEMCOUNT)); }
    std::wstring text(int index) const override {
        const HWND header = headerOf(m_window);
        const auto columns = static_cast<int>(header ? SendMessageW(header, HDM_GETITEMCOUNT, 0, 0) : 1);
        std::wstring row = cell(index, 0);
        for (int column = 1; column < columns; ++column) row += L"\t" + cell(index, column);
        return row;
    }
    std::vector<int> selected() const override {
        std::vector<int> found;
        const auto next = [&](int from) {
            return static_cast<int>(send(LVM_GETNEXTITEM, from, LVNI_SELECTED));
        };
        for (int index = next(-1); index >= 0; index = next(index)) found.push_back(index);
        return found;
    }
    void bringIntoView(int index, int column) const override {
        send(LVM_ENSUREVISIBLE, index, LPARAM(FALSE));
        scrollAcross(m_window, cellRect(index, column));
    }
    Spot at(int index, int column) const override { return middle(cellRect(index, column)); }
    int hit(POINT at) const override {
        LVHITTESTINFO hit{};
        hit.pt = at;
        return static_cast<int>(send(LVM_HITTEST, 0, &hit));
    }
    std::optional<Spot> checkBoxOf(int index) const override {
        const Spot spot = at(index, 0);
        return foundLeftOf(spot, [&](POINT point) {
            LVHITTESTINFO hit{};
            hit.pt = point;
            send(LVM_HITTEST, 0, &hit);
            return hit.flags == LVHT_ONITEMSTATEICON;
        });
    }

  private:
    RECT cellRect(int index, int column) const {
        RECT rect{};
        if (column > 0) {
            rect.top = column;
            rect.left = LVIR_BOUNDS;
            send(LVM_GETSUBITEMRECT, index, &rect);
        } else {
            rect.left = LVIR_LABEL;
            send(LVM_GETITEMRECT, index, &rect);
        }
        return rect;
    }
    std::wstring cell(int index, int column) const {
        return wholeText([&](wchar_t* buffer, int size) -> const wchar_t* {
            LVITEMW item{};
            item.iSubItem = column;
            item.pszText = buffer;
            item.cchTextMax = size;
            send(LVM_GETITEMTEXTW, index, &item);
            return item.pszText;
        });
    }
};

class TabItems : public ControlItems {
  public:
    using ControlItems::ControlItems;

    int count() const override { return static_cast<int>(send(TCM_GETITEMCOUNT)); }
    std::wstring text(int index) const override {
        return wholeText([&](wchar_t* buffer, int size) -> const wchar_t* {
            TCITEMW item{};
            item.mask = TCIF_TEXT;
            item.pszText = buffer;
            item.cchTextMax = size;
            send(TCM_GETITEMW, index, &item);
            return item.pszText;
        });
    }
    std::vector<int> selected() const override {
        const auto index = static_cast<int>(send(TCM_GETCURSEL));
        return index < 0 ? std::vector<int>() : std::vector{index};
    }
    // Tabs that have no room are reached by the arrows at the end of the row, one with each step.
    void bringIntoView(int index, int) const override {
        const HWND arrows = FindWindowExW(m_window, nullptr, UPDOWN_CLASSW, nullptr);
        const int room = arrows && IsWindowVisible(arrows) ? rectIn(arrows).left : rectIn(m_window).right;
        for (int steps = count(); steps > 0; --steps) {
            const RECT rect = itemRect(index);
            const LONG x = middle(rect).point.x;
            const bool isLeft = x < 0 || IsRectEmpty(&rect);
            if (!isLeft && x < room) return;
            scroll(arrows, isLeft ? -1 : 1);
        }
    }
    Spot at(int index, int) const override { return middle(itemRect(index)); }
    int hit(POINT at) const override {
        TCHITTESTINFO hit{};
        hit.pt = at;
        return static_cast<int>(send(TCM_HITTEST, 0, &hit));
    }

  private:
    // What the arrows tell their tabs. A press on them would take the mouse from who holds it.
    void scroll(HWND arrows, int step) const {
        const auto first = static_cast<WORD>(LOWORD(SendMessageW(arrows, UDM_GETPOS, 0, 0)) + step);
        SendMessageW(arrows, UDM_SETPOS, 0, MAKELPARAM(first, 0));
        send(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, first), arrows);
    }
    // Empty where it is scrolled off to the left; elsewhere such a tab may have an edge below 0.
    RECT itemRect(int index) const {
        RECT rect{};
        send(TCM_GETITEMRECT, index, &rect);
        return rect;
    }
    // Of a window, in the control's client pixels.
    RECT rectIn(HWND window) const {
        RECT rect;
        GetWindowRect(window, &rect);
        MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
};

}  // namespace

Spot Items::show(int index, int column) const {
    bringIntoView(index, column);
    return at(index, column);
}

int Items::find(lisp::Value item) const {
    if (item.isCons()) return findPath(item);
    const bool byText = item.isString();
    const std::wstring wanted = byText ? wideText(item.asString()) : std::wstring();
    for (int i = 0; i < count(); ++i) {
        if (byText ? text(i) == wanted : name(i) == item) return i;
    }
    return -1;
}

int Items::findPath(lisp::Value item) const {
    if (!tree()) return -1;
    int found = -1;
    for (const lisp::Value step : lisp::Elements(item)) {
        found = findChild(found, step);
        if (found < 0) return -1;
    }
    return found;
}

// Of -1 the items of the root.
int Items::findChild(int parent, lisp::Value step) const {
    const std::wstring wanted = step.isString() ? wideText(step.asString()) : std::wstring();
    int place = 0;
    for (int i = 0; i < count(); ++i) {
        if (tree()->parent(i) != parent) continue;
        if (step.isString() ? text(i) == wanted : step.isInteger() && step.asInteger() == place) return i;
        ++place;
    }
    return -1;
}

std::unique_ptr<Items> itemsOf(HWND control) {
    const std::wstring kind = windowClass(control);
    const auto is = [&](const wchar_t* name) { return lstrcmpiW(kind.c_str(), name) == 0; };
    if (is(L"ListBox")) return std::make_unique<ListBoxItems>(control);
    if (is(L"ComboBox")) return std::make_unique<ComboBoxItems>(control);
    if (is(WC_LISTVIEWW)) return std::make_unique<ListViewItems>(control);
    if (is(WC_TABCONTROLW)) return std::make_unique<TabItems>(control);
    if (is(WC_TREEVIEWW)) return treeItemsOf(control);
    return nullptr;
}

std::vector<ColumnHead> columnHeads(HWND control) {
    std::vector<ColumnHead> heads;
    const HWND header = headerOf(control);
    const auto count = header ? static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)) : 0;
    for (int column = 0; column < count; ++column) {
        HDITEMW item{};
        const std::wstring title = wholeText([&](wchar_t* buffer, int size) -> const wchar_t* {
            item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
            item.pszText = buffer;
            item.cchTextMax = size;
            SendMessageW(header, HDM_GETITEMW, column, reinterpret_cast<LPARAM>(&item));
            return item.pszText;
        });
        const int direction = item.fmt & HDF_SORTUP ? 1 : item.fmt & HDF_SORTDOWN ? -1 : 0;
        heads.push_back({title, item.cxy, direction});
    }
    return heads;
}

std::optional<Spot> headerSpot(HWND control, int column) {
    const HWND header = headerOf(control);
    RECT rect;
    if (!header || !SendMessageW(header, HDM_GETITEMRECT, column, reinterpret_cast<LPARAM>(&rect)))
        return std::nullopt;
    RECT inList = rect;
    MapWindowPoints(header, control, reinterpret_cast<POINT*>(&inList), 2);
    scrollAcross(control, inList);
    return Spot{header, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}};
}
