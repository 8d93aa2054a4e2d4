#include "host/drive/Look.h"

#include <commctrl.h>

#include "host/drive/GridFunctions.h"
#include "host/drive/Items.h"
#include "host/drive/Pairs.h"
#include "host/drive/WindowClass.h"
#include "host/services/Texts.h"

namespace {

bool isChecked(HWND window) {
    const bool isButton = SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON;
    return isButton && SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

bool hasGridLines(HWND window) {
    const bool isListView = hasWindowClass(window, WC_LISTVIEWW);
    return isListView && SendMessageW(window, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0) & LVS_EX_GRIDLINES;
}

// A combo box has the focus while its edit box has it.
bool hasFocus(HWND window) {
    const HWND focus = GetFocus();
    return focus == window || (focus && IsChild(window, focus));
}

lisp::Value number(LONG value) { return lisp::Value::integer(value); }

// In the client pixels of `in`, or of the screen with null.
lisp::Value rectOf(lisp::Interpreter& lisp, HWND window, HWND in) {
    RECT rect;
    GetWindowRect(window, &rect);
    MapWindowPoints(nullptr, in, reinterpret_cast<POINT*>(&rect), 2);
    return lisp.list({number(rect.left), number(rect.top), number(rect.right - rect.left),
                      number(rect.bottom - rect.top)});
}

lisp::Value clientOf(lisp::Interpreter& lisp, HWND window) {
    RECT client;
    GetClientRect(window, &client);
    return lisp.list({number(client.right), number(client.bottom)});
}

lisp::Value controlsOf(lisp::Interpreter& lisp, HWND dialog) {
    lisp::ListBuilder list(lisp);
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        list.add(number(GetDlgCtrlID(child)));
    return list.list();
}

lisp::Value selectedOf(lisp::Interpreter& lisp, HWND window) {
    lisp::ListBuilder list(lisp);
    if (const auto items = itemsOf(window)) {
        for (const int index : items->selected()) list.add(items->name(index));
    }
    return list.list();
}

lisp::Value pathList(lisp::Interpreter& lisp, const TreeLook& tree, int index) {
    lisp::ListBuilder texts(lisp);
    for (const std::wstring& text : tree.path(index)) texts.add(lisp.string(lispText(text)));
    return texts.list();
}

void addTree(Pairs& look, lisp::Interpreter& lisp, const Items& items, const TreeLook& tree) {
    const std::vector<int> selected = items.selected();
    look.add(u"path", selected.empty() ? lisp::Value() : pathList(lisp, tree, selected.front()));
    lisp::ListBuilder open(lisp), images(lisp), checked(lisp);
    for (int i = 0; i < items.count(); ++i) {
        if (!items.line(i)) continue;
        images.add(number(tree.image(i)));
        if (tree.isOpen(i)) open.add(pathList(lisp, tree, i));
        if (tree.isChecked(i)) checked.add(pathList(lisp, tree, i));
    }
    look.add(u"expanded", open.list());
    look.add(u"images", images.list());
    look.add(u"checks", checked.list());
    look.add(u"first", tree.first() < 0 ? lisp::Value() : pathList(lisp, tree, tree.first()));
}

void addGrid(Pairs& look, lisp::Interpreter& lisp, const GridWindow& grid) {
    const GridTableLook table = grid.table();
    look.add(u"current", table.hasCurrent ? placeList(lisp, table.current) : lisp::Value());
    look.add(u"ranges", selectedRanges(lisp, table));
    look.add(u"first", placeList(lisp, table.first));
}

void addScrollBar(Pairs& look, lisp::Interpreter& lisp, HWND bar) {
    int first = 0, last = 0;
    GetScrollRange(bar, SB_CTL, &first, &last);
    look.add(u"position", number(GetScrollPos(bar, SB_CTL)));
    look.add(u"range", lisp.list({number(first), number(last)}));
}

}  // namespace

lisp::Value lookOf(lisp::Interpreter& lisp, const Tile& tile) {
    const HWND window = tile.window();
    Pairs look(lisp);
    look.add(u"class", lisp.string(lispText(windowClass(window))));
    look.add(u"enabled", lisp::Value::truth(IsWindowEnabled(window)));
    look.add(u"visible", lisp::Value::truth(IsWindowVisible(window)));
    look.add(u"focus", lisp::Value::truth(hasFocus(window)));
    look.add(u"checked", lisp::Value::truth(isChecked(window)));
    look.add(u"rect", rectOf(lisp, window, tile.dialog()));
    look.add(u"selected", selectedOf(lisp, window));
    look.add(u"gridlines", lisp::Value::truth(hasGridLines(window)));
    if (const auto items = itemsOf(window); items && items->tree())
        addTree(look, lisp, *items, *items->tree());
    if (const auto grid = gridOf(window)) addGrid(look, lisp, *grid);
    if (hasWindowClass(window, WC_SCROLLBARW)) addScrollBar(look, lisp, window);
    return look.list();
}

lisp::Value lookOf(lisp::Interpreter& lisp, HWND dialog) {
    const HWND owner = GetWindow(dialog, GW_OWNER);
    Pairs look(lisp);
    look.add(u"class", lisp.string(lispText(windowClass(dialog))));
    look.add(u"title", lisp.string(lispText(textOf(dialog))));
    look.add(u"owner", owner ? lisp.string(lispText(textOf(owner))) : lisp::Value());
    look.add(u"enabled", lisp::Value::truth(IsWindowEnabled(dialog)));
    look.add(u"rect", rectOf(lisp, dialog, nullptr));
    look.add(u"client", clientOf(lisp, dialog));
    look.add(u"controls", controlsOf(lisp, dialog));
    return look.list();
}

lisp::Value lookOf(lisp::Interpreter& lisp, const BoxLook& box) {
    const auto text = [&](const std::wstring& text) {
        return text.empty() ? lisp::Value() : lisp.string(lispText(text));
    };
    Pairs look(lisp);
    look.add(u"title", text(box.title));
    look.add(u"icon", text(box.icon));
    look.add(u"owner", text(box.owner));
    return look.list();
}

lisp::Value pixelOf(const Tile& tile, int x, int y) {
    const HWND dialog = tile.dialog();
    RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    RECT rect;
    GetWindowRect(tile.window(), &rect);
    POINT at = {rect.left + x, rect.top + y};
    ScreenToClient(dialog, &at);
    // The dialog's surface shows its controls too.
    const HDC dc = GetDC(dialog);
    const COLORREF color = GetPixel(dc, at.x, at.y);
    ReleaseDC(dialog, dc);
    if (color == CLR_INVALID) tile.fail(L"the dialog doesn't show that point");
    return lisp::Value::integer(GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color));
}
