// The tile that a Lisp program names: its window and the dialog it stands in.
#pragma once

#include <windows.h>

#include <string>

#include "host/lisp/Call.h"

// A tile of the innermost running dialog, by key (a string) or control id (an integer); or a window within
// one, by a list of the tile and the ids that lead to it.
class Tile {
  public:
    // Argument `index` of the call. Throws lisp::Error where no dialog runs or the dialog has no such tile.
    Tile(lisp::Call& call, size_t index);

    HWND window() const { return m_window; }
    HWND dialog() const { return m_dialog; }
    // Throws an error unless a person could work it: visible and enabled.
    void mustBeWorkable() const;
    // Throws an error that says `why` about this tile of this dialog.
    [[noreturn]] void fail(const std::wstring& why) const;

  private:
    // The window of that key, or of that id within `parent`; null where there is none.
    HWND find(lisp::Call& call, size_t index, lisp::Value address, HWND parent);

    HWND m_dialog;
    HWND m_window;
    std::wstring m_name;
};

// The child of that control id, of several one that shows; null where there is none.
HWND childOf(HWND parent, int id);

// The innermost running dialog. Throws lisp::Error where there is none.
HWND runningDialog();
