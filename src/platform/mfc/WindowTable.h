// Which window has which wrapper. There is one table, for the one thread that owns the windows.
//
// A permanent wrapper takes its window's messages. An on-demand wrapper only names its window: the window may
// be anybody's, and goes on as if nothing had happened.
#pragma once

#include <windows.h>

class CWnd;

class WindowTable {
  public:
    // Null where the window has no wrapper of that kind.
    static CWnd* permanent(HWND window);
    static CWnd* onDemand(HWND window);

    // Makes an on-demand wrapper and gives it to its keeper: the outermost permanent wrapper among the window
    // and those above it, which is its dialog. Without a keeper it lives as long as the process.
    static CWnd* makeOnDemand(HWND window);

    // Makes `wrapper` the window's permanent one. An on-demand one lets go of the window. False where the
    // window has another permanent wrapper or takes no procedure of ours.
    static bool attach(HWND window, CWnd& wrapper);
    // The permanent wrapper lets go of its window, which gets its own procedure back.
    static void detach(CWnd& wrapper);
    // The on-demand wrapper lets go of its window, for good.
    static void retire(CWnd& wrapper);
    // The window is being destroyed, and those below it are: all their wrappers let go.
    static void gone(HWND window);

    // Has the message done by the procedure that the window had before it was attached, or else by the
    // platform's default one.
    static LRESULT callOwnProcedure(HWND window, UINT message, WPARAM w, LPARAM l);
};
