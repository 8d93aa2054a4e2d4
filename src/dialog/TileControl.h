// What a control family does for the dialog: the part of a wrapper that knows that it is a tile.
#pragma once

#include <memory>

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

    // A list control that shows rows of a source, and so has no items of its own.
    virtual bool showsSourceRows() const { return false; }

    // The dialog has been laid out anew. True: the control has to be redrawn.
    virtual bool laidOut() { return false; }

    // Turns pages, so many on or back, where the control has any. With `focus` only where that window stands
    // on one of them. False: it has none.
    virtual bool turnPage(int /*step*/, HWND /*focus*/) { return false; }

    // Whether Alt and that letter (lower case) press the control, beside what the platform finds in captions.
    virtual bool hasMnemonic(wchar_t /*letter*/) const { return false; }

    // --- for what stands on the control, as on a page

    // The brush that continues the control's own background in `dc`, which is that of `other`; null where
    // `other` doesn't stand on it or has a background of its own. The control's.
    virtual HBRUSH brushUnder(HDC /*dc*/, const CWnd& /*other*/) { return nullptr; }
    // Paints the background into the dialog's, for controls that let the dialog shine through.
    virtual void paintUnder(HDC /*dc*/, const CWnd& /*dialog*/) {}

    // Name of the Lisp function behind the tile, empty for none.
    CString m_action;
};

// What the dialog knows of a kind of control.
struct ControlFamily {
    ControlKind kind;
    const wchar_t* typeWord;
    // Makes a wrapper; null leaves the control unwrapped.
    std::unique_ptr<TileControl> (*make)();
    // The messages that carry the rest of a record to the control, wrapped or bare; null for none.
    void (*applyMessages)(const CWnd& control, const CCtrlInfo& tile);
};

// The families of the product, one for each kind of control, in the module's ControlFamilies.cpp.
const ControlFamily& familyOf(ControlKind kind);
// The family of that type word, which is the class name of a bare control; null where there is none.
const ControlFamily* familyOfType(const CString& typeWord);
