// The record of one tile of one dialog, kept from the tile's first mention to the dialog's end. Portable.
#pragma once

#include <cstdint>

#include "src/dialog/Anchors.h"
#include "src/platform/base/CObject.h"
#include "src/platform/base/CString.h"
#include "src/platform/base/PixelRect.h"

class CWnd;

// What mode a tile is in.
enum TileMode : int32_t {
    MODE_ENABLE = 0,
    MODE_DISABLE = 1,
    MODE_FOCUS = 2,
    MODE_SELECT_TEXT = 3,
    MODE_NOTHING = 4,
    MODE_SHOW = 5,
    MODE_HIDE = 6,
};

// What wex_start_list opened a list for.
enum ListOperation : int32_t {
    LIST_CHANGE_ROW = -1,
    LIST_CHANGE = 1,
    LIST_APPEND = 2,
    LIST_NEW = 3,
};

struct CCtrlInfo : CObject {
    // kept: mode and list operation are one number, and the last writer wins. A list that was opened before
    // the dialog runs starts in the mode of that number; a mode that is set later changes how items are
    // added.
    int32_t mode() const { return m_mode; }
    void setMode(int32_t mode) { m_mode = mode; }
    int32_t listOperation() const { return m_mode; }
    void setListOperation(int32_t operation) { m_mode = operation; }

    CString m_key;    // lower case
    CString m_value;  // the last value set
    CStringArray m_listItems;
    CString m_action;  // name of the Lisp function
    int32_t m_listIndex = -1;
    int32_t m_mode = MODE_ENABLE;
    int32_t m_ctrlId = -1;
    int32_t m_resizeCode = -1;
    bool m_isCodeGiven = false;   // by Lisp: the template's anchor doesn't count
    int32_t m_editLimit = 36000;  // characters
    CWnd* m_control = nullptr;    // the dialog's
    CString m_slideFile;
    CString m_auxText;  // the slide's name within its file, or a list control's column text
    PixelRect m_slideRect;
    bool m_endListFlag = false;
    int32_t m_endListIndex = -1;
    CString m_controlType;  // the type word that discovery gave
    bool m_dblClickEnabled = true;
    AnchorOffsets m_anchorOffsets;
    HeightShares m_heightShares;
};
