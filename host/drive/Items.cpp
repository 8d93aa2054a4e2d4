#include "host/drive/Items.h"

#include <commctrl.h>

#include <algorithm>
#include <cstring>

#include "host/services/Texts.h"

namespace {

// Longer texts of rows, tabs and tree items are cut.
constexpr int MOST_TEXT_CHARS = 4096;

HWND headerOf(HWND listView) { return reinterpret_cast<HWND>(SendMessageW(listView, LVM_GETHEADER, 0, 0)); }

class Control : public Items {
  public:
    explicit Control(HWND window) : m_window(window) {}

  protected:
    LRESULT send(UINT message, WPARAM w = 0, LPARAM l = 0) const {
        return SendMessageW(m_window, message, w, l);
    }
    template <class Record>
    LRESULT send(UINT message, WPARAM w, Record* record) const {
        return send(message, w, reinterpret_cast<LPARAM>(record));
    }
    Spot middle(const RECT& rect) const {
        return {m_window, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}};
    }
    static std::wstring upToNul(const std::wstring& buffer) { return buffer.c_str(); }

    HWND m_window;
};

class ListBoxItems : public Control {
  public:
    using Control::Control;

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
    Spot show(int index, int) const override {
        RECT rect{};
        send(LB_GETITEMRECT, index, &rect);
        RECT client;
        GetClientRect(m_window, &client);
        if (rect.top < 0 || rect.bottom > client.bottom) {
            send(LB_SETTOPINDEX, index);
            send(LB_GETITEMRECT, index, &rect);
        }
        return middle(rect);
    }
};

class ComboBoxItems : public Control {
  public:
    using Control::Control;

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
    Spot show(int index, int) const override {
        COMBOBOXINFO parts = {sizeof parts};
        GetComboBoxInfo(m_window, &parts);
        const bool dropsDown = (GetWindowLongW(m_window, GWL_STYLE) & 3) != CBS_SIMPLE;
        if (dropsDown) {
            SetFocus(m_window);
            send(CB_SHOWDROPDOWN, TRUE);
        }
        return ListBoxItems(parts.hwndList).show(index, 0);
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

class ListViewItems : public Control {
  public:
    using Control::Control;

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
    Spot show(int index, int column) const override {
        send(LVM_ENSUREVISIBLE, index, LPARAM(FALSE));
        scrollAcross(m_window, cellRect(index, column));
        return middle(cellRect(index, column));
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
        std::wstring buffer(MOST_TEXT_CHARS, L'\0');
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = buffer.data();
        item.cchTextMax = MOST_TEXT_CHARS;
        send(LVM_GETITEMTEXTW, index, &item);
        return item.pszText ? std::wstring(item.pszText) : std::wstring();
    }
};

class TabItems : public Control {
  public:
    using Control::Control;

    int count() const override { return static_cast<int>(send(TCM_GETITEMCOUNT)); }
    std::wstring text(int index) const override {
        std::wstring buffer(MOST_TEXT_CHARS, L'\0');
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = buffer.data();
        item.cchTextMax = MOST_TEXT_CHARS;
        send(TCM_GETITEMW, index, &item);
        return upToNul(buffer);
    }
    std::vector<int> selected() const override {
        const auto index = static_cast<int>(send(TCM_GETCURSEL));
        return index < 0 ? std::vector<int>() : std::vector{index};
    }
    // Tabs that have no room are reached by the arrows at the end of the row, one with each step.
    Spot show(int index, int) const override {
        const HWND arrows = FindWindowExW(m_window, nullptr, UPDOWN_CLASSW, nullptr);
        const int room = arrows && IsWindowVisible(arrows) ? rectIn(arrows).left : rectIn(m_window).right;
        Spot spot = middle(itemRect(index));
        for (int steps = count(); steps > 0 && (spot.point.x < 0 || spot.point.x >= room); --steps) {
            const auto first = static_cast<int>(SendMessageW(arrows, UDM_GETPOS32, 0, 0));
            const int next = first + (spot.point.x < 0 ? -1 : 1);
            send(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, next), reinterpret_cast<LPARAM>(arrows));
            spot = middle(itemRect(index));
        }
        return spot;
    }

  private:
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

// The items from top to bottom, those in closed branches too.
class TreeItems : public Control {
  public:
    explicit TreeItems(HWND window) : Control(window) { gather(next(TVGN_ROOT, nullptr)); }

    int count() const override { return static_cast<int>(m_handles.size()); }
    std::wstring text(int index) const override {
        std::wstring buffer(MOST_TEXT_CHARS, L'\0');
        TVITEMW item{};
        item.mask = TVIF_TEXT;
        item.hItem = m_handles[index];
        item.pszText = buffer.data();
        item.cchTextMax = MOST_TEXT_CHARS;
        send(TVM_GETITEMW, 0, &item);
        return upToNul(buffer);
    }
    // A handle goes to Lisp in 32 bits.
    lisp::Value name(int index) const override {
        return lisp::Value::integer(static_cast<int32_t>(reinterpret_cast<intptr_t>(m_handles[index])));
    }
    std::vector<int> selected() const override {
        const HTREEITEM caret = next(TVGN_CARET, nullptr);
        const auto found = std::find(m_handles.begin(), m_handles.end(), caret);
        if (found == m_handles.end()) return {};
        return {static_cast<int>(found - m_handles.begin())};
    }
    Spot show(int index, int) const override {
        send(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(m_handles[index]));
        RECT rect{};
        std::memcpy(&rect, &m_handles[index], sizeof(HTREEITEM));
        send(TVM_GETITEMRECT, TRUE, &rect);
        return middle(rect);
    }

  private:
    HTREEITEM next(UINT relation, HTREEITEM from) const {
        return reinterpret_cast<HTREEITEM>(send(TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(from)));
    }
    void gather(HTREEITEM item) {
        for (; item; item = next(TVGN_NEXT, item)) {
            m_handles.push_back(item);
            gather(next(TVGN_CHILD, item));
        }
    }

    std::vector<HTREEITEM> m_handles;
};

}  // namespace

int Items::find(lisp::Value item) const {
    const bool byText = item.isString();
    const std::wstring wanted = byText ? wideText(item.asString()) : std::wstring();
    for (int i = 0; i < count(); ++i) {
        if (byText ? text(i) == wanted : name(i) == item) return i;
    }
    return -1;
}

std::unique_ptr<Items> itemsOf(HWND control) {
    wchar_t kind[64] = {};
    GetClassNameW(control, kind, ARRAYSIZE(kind));
    const auto is = [&](const wchar_t* name) { return lstrcmpiW(kind, name) == 0; };
    if (is(L"ListBox")) return std::make_unique<ListBoxItems>(control);
    if (is(L"ComboBox")) return std::make_unique<ComboBoxItems>(control);
    if (is(WC_LISTVIEWW)) return std::make_unique<ListViewItems>(control);
    if (is(WC_TABCONTROLW)) return std::make_unique<TabItems>(control);
    if (is(WC_TREEVIEWW)) return std::make_unique<TreeItems>(control);
    return nullptr;
}

std::vector<ColumnHead> columnHeads(HWND control) {
    std::vector<ColumnHead> heads;
    const HWND header = headerOf(control);
    const auto count = header ? static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)) : 0;
    for (int column = 0; column < count; ++column) {
        std::wstring title(MOST_TEXT_CHARS, L'\0');
        HDITEMW item{};
        item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
        item.pszText = title.data();
        item.cchTextMax = MOST_TEXT_CHARS;
        SendMessageW(header, HDM_GETITEMW, column, reinterpret_cast<LPARAM>(&item));
        const int direction = item.fmt & HDF_SORTUP ? 1 : item.fmt & HDF_SORTDOWN ? -1 : 0;
        heads.push_back({item.pszText, item.cxy, direction});
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
