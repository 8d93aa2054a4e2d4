#include "host/drive/TreeItems.h"

#include <commctrl.h>

#include <algorithm>
#include <cstring>

#include "host/drive/ControlItems.h"

namespace {

class TreeItems : public ControlItems, public TreeLook {
  public:
    explicit TreeItems(HWND window) : ControlItems(window) { gather(next(TVGN_ROOT, nullptr), -1); }

    int count() const override { return static_cast<int>(m_items.size()); }
    std::wstring text(int index) const override {
        return wholeText([&](wchar_t* buffer, int size) -> const wchar_t* {
            TVITEMW item = record(index, TVIF_TEXT);
            item.pszText = buffer;
            item.cchTextMax = size;
            send(TVM_GETITEMW, 0, &item);
            return item.pszText;
        });
    }
    // With a tab for each branch that it stands in.
    std::optional<std::wstring> line(int index) const override {
        std::wstring line = text(index);
        for (int above = m_items[index].parent; above >= 0; above = m_items[above].parent) {
            if (!isOpen(above)) return std::nullopt;
            line.insert(line.begin(), L'\t');
        }
        return line;
    }
    // A handle goes to Lisp in 32 bits.
    lisp::Value name(int index) const override {
        return lisp::Value::integer(static_cast<int32_t>(reinterpret_cast<intptr_t>(m_items[index].handle)));
    }
    std::vector<int> selected() const override {
        const int caret = indexOf(next(TVGN_CARET, nullptr));
        return caret < 0 ? std::vector<int>() : std::vector{caret};
    }
    void bringIntoView(int index, int) const override {
        send(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(m_items[index].handle));
    }
    Spot at(int index, int) const override { return middle(textRect(index)); }
    std::optional<Spot> checkBoxOf(int index) const override { return part(index, TVHT_ONITEMSTATEICON); }
    // The place of a button answers also where the item shows none.
    std::optional<Spot> buttonOf(int index) const override {
        TVITEMW item = record(index, TVIF_CHILDREN);
        send(TVM_GETITEMW, 0, &item);
        return item.cChildren ? part(index, TVHT_ONITEMBUTTON) : std::nullopt;
    }

    int hit(POINT at) const override {
        TVHITTESTINFO hit{};
        hit.pt = at;
        send(TVM_HITTEST, 0, &hit);
        return indexOf(hit.hItem);
    }

    const TreeLook* tree() const override { return this; }
    std::vector<std::wstring> path(int index) const override {
        std::vector<std::wstring> texts;
        for (int at = index; at >= 0; at = m_items[at].parent) texts.push_back(text(at));
        std::reverse(texts.begin(), texts.end());
        return texts;
    }
    int parent(int index) const override { return m_items[index].parent; }
    bool isOpen(int index) const override { return state(index) & TVIS_EXPANDED; }
    int image(int index) const override {
        TVITEMW item = record(index, TVIF_IMAGE | TVIF_SELECTEDIMAGE);
        send(TVM_GETITEMW, 0, &item);
        return next(TVGN_CARET, nullptr) == m_items[index].handle ? item.iSelectedImage : item.iImage;
    }
    // The second of the images of a tree's check boxes is the one with the mark.
    bool isChecked(int index) const override { return (state(index) & TVIS_STATEIMAGEMASK) >> 12 == 2; }
    int first() const override { return indexOf(next(TVGN_FIRSTVISIBLE, nullptr)); }

  private:
    struct Item {
        HTREEITEM handle;
        int parent;  // its place among the items; -1 for an item of the root
    };

    HTREEITEM next(UINT relation, HTREEITEM from) const {
        return reinterpret_cast<HTREEITEM>(send(TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(from)));
    }
    // -1 for none.
    int indexOf(HTREEITEM item) const {
        for (int i = 0; i < count(); ++i)
            if (item && m_items[i].handle == item) return i;
        return -1;
    }
    void gather(HTREEITEM item, int parent) {
        for (; item; item = next(TVGN_NEXT, item)) {
            m_items.push_back({item, parent});
            gather(next(TVGN_CHILD, item), count() - 1);
        }
    }
    TVITEMW record(int index, UINT mask) const {
        TVITEMW item{};
        item.mask = mask | TVIF_HANDLE;
        item.hItem = m_items[index].handle;
        return item;
    }
    UINT state(int index) const {
        TVITEMW item = record(index, TVIF_STATE);
        item.stateMask = TVIS_EXPANDED | TVIS_STATEIMAGEMASK;
        send(TVM_GETITEMW, 0, &item);
        return item.state;
    }
    RECT textRect(int index) const {
        RECT rect{};
        std::memcpy(&rect, &m_items[index].handle, sizeof(HTREEITEM));
        send(TVM_GETITEMRECT, TRUE, &rect);
        return rect;
    }
    // What the tree tells at the points left of the text.
    std::optional<Spot> part(int index, UINT wanted) const {
        const RECT text = textRect(index);
        const Spot start{m_window, {text.left, (text.top + text.bottom) / 2}};
        return foundLeftOf(start, [&](POINT point) {
            TVHITTESTINFO hit{};
            hit.pt = point;
            send(TVM_HITTEST, 0, &hit);
            return (hit.flags & wanted) && hit.hItem == m_items[index].handle;
        });
    }

    std::vector<Item> m_items;
};

}  // namespace

std::unique_ptr<Items> treeItemsOf(HWND treeView) { return std::make_unique<TreeItems>(treeView); }
