// Dialogs by hand-written Win32, from the templates that the product uses.
#pragma once

#include <windows.h>

// Milliseconds to make, show, paint and close a modal dialog that is owned by the host's main frame and ends
// at its first idle moment. `prepare` gets the dialog before it shows.
double bareOpenAndClose(HMODULE templates, int id, void (*prepare)(HWND dialog));
// Of those, what the last call took until all was painted.
double bareShown();
// Of a dialog of Bench.rc.
double bareOpenAndClose(int id, void (*prepare)(HWND dialog));

// The dialog that stands beside the product's and does the same things in turn; one at a time.
class BareDialog {
  public:
    // Opens it at the right half of the screen, and moves `neighbour` to the left: what overlaps is drawn
    // otherwise. `id` is that of a template of Bench.rc.
    static void open(int id, HWND neighbour);
    static void close();
    static HWND window() { return s_window; }
    static HWND item(int id) { return GetDlgItem(s_window, id); }
    // The whole window, in pixels.
    static void resize(int width, int height);
    // A tab control turns to a page of two, of `count` controls each that follow each other from the id
    // `first` on.
    static void turn(int tab, int page, int first, int count);

  private:
    static inline HWND s_window = nullptr;
};
