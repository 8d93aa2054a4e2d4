#include "host/drive/Look.h"

#include "host/drive/Items.h"
#include "host/services/Texts.h"

namespace {

std::wstring classOf(HWND window) {
    wchar_t name[256] = {};
    GetClassNameW(window, name, ARRAYSIZE(name));
    return name;
}

bool isChecked(HWND window) {
    const bool isButton = SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON;
    return isButton && SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

// A combo box has the focus while its edit box has it.
bool hasFocus(HWND window) {
    const HWND focus = GetFocus();
    return focus == window || (focus && IsChild(window, focus));
}

lisp::Value rectOf(lisp::Interpreter& lisp, const Tile& tile) {
    RECT rect;
    GetWindowRect(tile.window(), &rect);
    MapWindowPoints(nullptr, tile.dialog(), reinterpret_cast<POINT*>(&rect), 2);
    const auto number = [](LONG value) { return lisp::Value::integer(value); };
    return lisp.list({number(rect.left), number(rect.top), number(rect.right - rect.left),
                      number(rect.bottom - rect.top)});
}

lisp::Value selectedOf(lisp::Interpreter& lisp, HWND window) {
    lisp::ListBuilder list(lisp);
    if (const auto items = itemsOf(window)) {
        for (const int index : items->selected()) list.add(items->name(index));
    }
    return list.list();
}

}  // namespace

lisp::Value lookOf(lisp::Interpreter& lisp, const Tile& tile) {
    const HWND window = tile.window();
    lisp::ListBuilder look(lisp);
    const auto add = [&](std::u16string_view name, lisp::Value value) {
        look.add(lisp.cons(lisp.string(name), value));
    };
    add(u"class", lisp.string(lispText(classOf(window))));
    add(u"enabled", lisp::Value::truth(IsWindowEnabled(window)));
    add(u"visible", lisp::Value::truth(IsWindowVisible(window)));
    add(u"focus", lisp::Value::truth(hasFocus(window)));
    add(u"checked", lisp::Value::truth(isChecked(window)));
    add(u"rect", rectOf(lisp, tile));
    add(u"selected", selectedOf(lisp, window));
    return look.list();
}
