#include "host/drive/Tile.h"

#include "host/documents/Documents.h"
#include "host/drive/MessageBoxes.h"
#include "host/drive/Player.h"
#include "host/services/Host.h"
#include "host/services/Texts.h"

HWND runningDialog() {
    // The plug-in is asked in any case, so that it shows what it has put off.
    const HWND newest = documents().findWindow(nullptr, nullptr, -1);
    const HWND playing = player().playedDialog();
    const HWND dialog = playing ? playing : newest;
    if (!dialog) throw lisp::Error(u"no dialog is open");
    return dialog;
}

Tile::Tile(lisp::Call& call, size_t index) : m_dialog(runningDialog()) {
    const lisp::Value address = call[index];
    if (!address.isString() && !address.isInteger()) call.expected(index, "a key or a control id");
    const bool byKey = address.isString();
    const std::wstring key = byKey ? wideText(address.asString()) : L"";
    m_name = byKey ? L"\"" + key + L"\"" : std::to_wstring(address.asInteger());
    // By key the plug-in knows; it answers for its newest dialog, which is this one.
    m_window =
        byKey ? documents().findWindow(nullptr, key.c_str(), -1) : GetDlgItem(m_dialog, address.asInteger());
    if (!m_window) fail(L"there is no such tile");
}

void Tile::mustBeWorkable() const {
    if (!IsWindowVisible(m_window)) fail(L"it is not visible");
    if (!IsWindowEnabled(m_window)) fail(L"it is disabled");
    if (!IsWindowEnabled(GetAncestor(m_window, GA_ROOT))) fail(L"its dialog is disabled");
}

void Tile::fail(const std::wstring& why) const {
    throw lisp::Error(lispText(L"tile " + m_name + L" of dialog \"" + textOf(m_dialog) + L"\": " + why));
}
