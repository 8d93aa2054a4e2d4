// Records the keyboard: what was typed into a box as the text that came of it, and other keys one by one.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "host/drive/KeyNames.h"
#include "host/record/Journal.h"
#include "host/record/TileNames.h"

class KeyRecorder {
  public:
    explicit KeyRecorder(Journal& journal) : m_journal(journal) {}

    // All are told of messages that are about to be handled, of windows of that dialog.
    void keyDown(const MSG& message, HWND dialog);
    void keyUp(const MSG& message, HWND dialog);
    void character(const MSG& message, HWND dialog);
    // Something else is about to be done in that dialog: what was typed until now is all.
    void endTyping(HWND dialog);
    // What was typed until now was handled.
    void update();
    void windowGone(HWND window);

  private:
    // An edit box that is being typed into.
    struct Typing {
        HWND dialog, edit;
        NamedTile tile;
        std::wstring before;  // its text at the start
        Recording::Place step;
        bool isForced = false;  // to be told also where the text is as before
    };

    void type(HWND edit, HWND dialog);
    void typeControl(const MSG& message, HWND dialog);
    void addKey(const MSG& message, HWND dialog, const KeyStroke& stroke);
    void addMarking(HWND editor, HWND dialog);
    void addCharacter(const MSG& message, HWND dialog);
    void resolveFocus();

    Journal& m_journal;
    std::optional<Typing> m_typing;
    HWND m_singly = nullptr;                  // an edit box whose keys are recorded one by one
    std::optional<Recording::Place> m_moved;  // a key that may have moved the focus
    HWND m_movedFrom = nullptr;
    bool m_byTab = false;
    std::wstring m_characters;  // of the last step, where that is characters
    LPARAM m_told = 0;          // of a key that was recorded, whose character isn't
};
