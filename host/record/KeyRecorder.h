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
    // Something else is about to be done: what was typed until now is all.
    void endTyping();
    // What was typed until now was handled.
    void update();
    void windowGone(HWND window);

  private:
    // A step that types into an edit box, and where it leaves the caret.
    struct Typed {
        Recording::Place step;
        std::wstring text;
        std::wstring range;  // as ui_type takes it: of the text that it takes the place of; empty for all
        DWORD caret;
    };
    // An edit box that is being typed into.
    struct Typing {
        HWND dialog, edit;
        NamedTile tile;
        std::wstring before;  // its text at the start
        bool isWhole;         // all of it was marked
        Recording::Place step;
        std::optional<Typed> line;  // which ends in a new line, and goes on here
    };

    void type(HWND edit, HWND dialog);
    void typeLineEnd(HWND edit, HWND dialog);
    Typed typedBy(const Typing& typing) const;
    void setTyped(const Typed& typed, const NamedTile& tile);
    void addKey(const MSG& message, HWND dialog, const KeyStroke& stroke);
    void addMarking(HWND editor, HWND dialog);
    void addCharacter(const MSG& message, HWND dialog);
    void resolveFocus();

    Journal& m_journal;
    std::optional<Typing> m_typing;
    // The last step that typed a new line, the edit box, and the step after which it can go on.
    struct {
        std::optional<Typed> typed;
        HWND edit;
        Recording::Place last;
    } m_line{};
    std::optional<Recording::Place> m_moved;  // a key that may have moved the focus
    HWND m_movedFrom = nullptr;
    std::wstring m_characters;  // of the last step, where that is characters
    LPARAM m_told = 0;          // of a key that was recorded, whose character isn't
};
