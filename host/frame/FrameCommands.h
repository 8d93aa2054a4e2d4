// What a person can have done in the main frame: each command with its text, its keys and its icon.
#pragma once

#include <windows.h>

#include <span>
#include <string>

#include "src/platform/mfc/Drawing.h"

// Numbers of the icons in frame.rc.
enum class FrameIcon : UINT {
    none = 0,
    open,
    run,
    plugin,
    fit,
    zoomIn,
    zoomOut,
    top,
    front,
    right,
    isometric,
    help,
};

// The numbers of the commands.
inline constexpr UINT OPEN_PROGRAM = 1001, RUN_AGAIN = 1002, LOAD_PLUGIN = 1003, EXIT = 1004, FIT = 1005,
                      ZOOM_IN = 1006, ZOOM_OUT = 1007, ABOUT = 1008;
// Each with as many behind it as there are views, styles, pages, programs and dialogs.
inline constexpr UINT FIRST_VIEW = 1100, FIRST_STYLE = 1120, FIRST_PAGE = 1140, FIRST_RECENT = 1200,
                      FIRST_DIALOG = 2000;

struct FrameCommand {
    UINT id;
    const wchar_t* text;  // with the mark of its mnemonic
    BYTE modifiers = 0;   // FCONTROL, FSHIFT, FALT
    WORD key = 0;         // a virtual key; 0 for none
    FrameIcon icon = FrameIcon::none;
};

const FrameCommand& frameCommand(UINT id);

// As a menu has it: its shortcut behind a tab.
std::wstring menuText(const FrameCommand& command);
// As assistive programs tell it: the text without marks.
std::wstring nameText(const FrameCommand& command);
// As a tip has it: without marks, its shortcut in brackets.
std::wstring tipText(const FrameCommand& command);

// The keys of all commands.
HACCEL createAccelerators();

// `side` in device pixels. Null for none.
UniqueIcon frameIcon(FrameIcon icon, int side);
