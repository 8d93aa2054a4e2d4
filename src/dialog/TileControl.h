// What a control family does for the dialog: the part of a wrapper that knows that it is a tile.
#pragma once

#include <memory>
#include <string_view>

#include "src/dialog/CCtrlInfo.h"
#include "src/dialog/ControlKind.h"
#include "src/platform/mfc/CWnd.h"

class WexDialog;

class TileControl {
  public:
    virtual ~TileControl() = default;

    // The wrapper as a window: the same object.
    virtual CWnd& wnd() = 0;

    // Takes a control of the template.
    virtual void attach(WexDialog& dialog, HWND control);
    // The wrapper is attached and joined to its record.
    virtual void discovered(WexDialog& /*dialog*/, CCtrlInfo& /*tile*/) {}
    // Takes over what the wrapper keeps of the record. The base copies the action's name.
    virtual void applyRecord(CCtrlInfo& tile);

    // The value that Lisp gets. The base gives the window's text.
    virtual CString value() { return wnd().GetWindowText(); }

    // The dialog has been laid out anew. True: the control has to be redrawn.
    virtual bool laidOut() { return false; }

    // Turns that many pages on, or back if negative. With `focus`, only if that window is the control or
    // stands on its page. False where no page was turned.
    virtual bool turnPage(int /*step*/, HWND /*focus*/) { return false; }

    // A button of the dialog that no tile can be was pressed.
    virtual void pressed(int /*id*/) {}

    // Whether Alt and that letter (lower case) press the control, beside what the platform finds in captions.
    virtual bool hasMnemonic(wchar_t /*letter*/) const { return false; }

    // --- for what stands on the control, as on a page

    // The brush that continues this control's background under `other`, whose device context is `dc`. Null
    // where `other` doesn't stand on this control or has a background of its own. Owned by this control.
    virtual HBRUSH brushUnder(HDC /*dc*/, const CWnd& /*other*/) { return nullptr; }
    // Paints the background on the dialog, for transparent controls, which show what the dialog has there.
    virtual void paintUnder(HDC /*dc*/, const CWnd& /*dialog*/) {}

    // Name of the Lisp function behind the tile, empty for none.
    CString m_action;
};

// What the dialog knows of a kind of control.
struct ControlFamily {
    ControlKind kind;
    std::wstring_view typeWord;
    // Makes a wrapper; null leaves the control unwrapped.
    std::unique_ptr<TileControl> (*make)() = nullptr;

    // --- for all controls of the window class that is the type word, also where they aren't wrapped

    // The messages that carry the rest of a record to the control; null for none.
    void (*applyMessages)(const CWnd& control, const CCtrlInfo& tile) = nullptr;
    // Sets the value that Lisp gives; null makes it the window's text.
    void (*setValue)(CWnd& control, const CString& value, bool byKey) = nullptr;
    // Lisp begins a new list in a live control; null where that empties nothing.
    void (*emptyEntries)(CWnd& control, bool byKey) = nullptr;
    // Lisp adds to the list of a live control; null where it takes nothing. The operation is a ListOperation.
    void (*addEntry)(CWnd& control, const wchar_t* text, int operation) = nullptr;
    // Lisp ends the list of a live control, whose record has the arguments; null where there is nothing to
    // do.
    void (*endEntries)(CWnd& control, CCtrlInfo& tile) = nullptr;
};

// The families of the product, one for each kind of control, in the module's ControlFamilies.cpp.
const ControlFamily& familyOf(ControlKind kind);
// The family of that type word, or of that window class; null where there is none.
const ControlFamily* familyOfType(const CString& typeWord);

// A control that one dialog of the product has besides those of its key list. Discovery doesn't look at its
// id.
struct ExtraControl {
    int id;
    std::wstring_view typeWord;
    int resizeCode;
    std::unique_ptr<TileControl> (*make)();
};

// The one of that dialog, in the module's ControlFamilies.cpp; null where it has none.
const ExtraControl* extraControlOf(const CString& dialogName);
