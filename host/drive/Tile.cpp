#include "host/drive/Tile.h"

#include "host/documents/Documents.h"
#include "host/drive/MessageBoxes.h"
#include "host/drive/Player.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

HWND childOf(HWND parent, int id) {
    HWND hidden = nullptr;
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (GetDlgCtrlID(child) != id) continue;
        if (GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) return child;
        if (!hidden) hidden = child;
    }
    return hidden;
}

HWND runningDialog() {
    // The plug-in is asked in any case, so that it shows what it has put off.
    const HWND newest = documents().newestDialog();
    const HWND playing = player().playedDialog();
    const HWND dialog = playing ? playing : newest;
    if (!dialog) throw lisp::Error(u"no dialog is open");
    return dialog;
}

Tile::Tile(lisp::Call& call, size_t index) : m_dialog(runningDialog()), m_window(m_dialog) {
    if (!call[index].isCons()) {
        m_window = find(call, index, call[index], m_dialog);
    } else {
        for (const lisp::Value part : lisp::Elements(call[index]))
            if (m_window) m_window = find(call, index, part, m_window);
    }
    if (!m_window) fail(L"there is no such tile");
}

HWND Tile::find(lisp::Call& call, size_t index, lisp::Value address, HWND parent) {
    const bool byKey = address.isString() && parent == m_dialog;
    if (!byKey && !address.isInteger()) call.expected(index, "a key or a control id");
    const std::wstring key = byKey ? wideText(address.asString()) : L"";
    m_name +=
        (m_name.empty() ? L"" : L" ") + (byKey ? L"\"" + key + L"\"" : std::to_wstring(address.asInteger()));
    // By key the plug-in knows; it answers for its newest dialog, which is this one.
    return byKey ? documents().findWindow(nullptr, key.c_str(), -1) : childOf(parent, address.asInteger());
}

void Tile::mustBeWorkable() const {
    if (!IsWindowVisible(m_window)) fail(L"it is not visible");
    if (!IsWindowEnabled(m_window)) fail(L"it is disabled");
    if (!IsWindowEnabled(GetAncestor(m_window, GA_ROOT))) fail(L"its dialog is disabled");
}

void Tile::fail(const std::wstring& why) const {
    throw lisp::Error(lispText(L"tile " + m_name + L" of dialog \"" + textOf(m_dialog) + L"\": " + why));
}
