// Records presses of the mouse's buttons: what was pressed, not where.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "host/drive/GridWindow.h"
#include "host/record/Journal.h"
#include "host/record/TileNames.h"

class MouseRecorder {
  public:
    explicit MouseRecorder(Journal& journal) : m_journal(journal) {}

    // Both are told of messages that are about to be handled, of windows of that dialog.
    void pressed(const MSG& message, HWND dialog);
    void released(const MSG& message, HWND dialog);
    void wheelTurned(const MSG& message, HWND dialog);
    void moved(const MSG& message);
    // A key is pressed in that dialog: it finds a list or a grid where the mouse has led it.
    void keyPressed(HWND dialog);
    // A key is pressed in that dialog, or it goes. The button of an earlier press came up where nobody saw
    // it, as when the press has brought up a box: it was no click.
    void dropUnfinished(HWND dialog);
    // A dialog or a box has come and gone: two presses before and after it are no double click for a session,
    // whose second press it would take.
    void dialogGone() { m_wasApart = true; }

  private:
    // A button that is down.
    struct Press {
        HWND dialog, window;
        NamedTile tile;
        POINT at;
        std::wstring keys;  // held meanwhile, as the functions of sessions take them
        std::optional<Recording::Place> step;
        std::wstring held;  // the form that presses it and doesn't let go; empty where that does the same
        int entry = -1;     // the item or the column that was pressed
        std::optional<GridHit> cell;
        std::optional<int> anchor;  // of a list box that marks with the mouse since an earlier press
    };

    // The editor of a grid's cell where that was pressed; no tile otherwise.
    static NamedTile cellEditorOf(const Press& press);
    void pressedLeft(Press& press, bool isDouble);
    void pressedRight(const Press& press);
    void pressedPoint(Press& press, const NamedTile& tile, bool isDouble);
    void pressedEntry(Press& press, const Items& items, bool isDouble);
    void pressedCell(Press& press, bool isDouble);
    void pressedCellEditor(Press& press, bool isDouble);
    void pressedCombo(Press& press);
    void releasedEntry(const Press& press, POINT at);
    void releasedMarking(const Press& press);
    void releasedCell(const Press& press, POINT at);
    void releasedList(HWND dialog, const MSG& message);

    struct Forms {
        std::wstring once, twice;
        // A second press whose first one did something else, as a drag, is told as a double one. Of a button,
        // and of a part of an entry, one press is as good as another.
        bool isPick = false;
    };

    // The press that was recorded last, while the next one may make a double one of it.
    struct FirstPress {
        Recording::Place step;
        Forms forms;
    };

    void add(Press& press, RecordedStep::Kind kind, std::wstring form);
    // The form `once`, or `twice` in place of it where this is the second press of a double one.
    void addPress(Press& press, RecordedStep::Kind kind, Forms forms, bool isDouble);

    Journal& m_journal;
    std::vector<Press> m_down;
    std::optional<FirstPress> m_first;
    HWND m_hovered = nullptr;  // a list or grid that marks what lies under the mouse, since the last key
    bool m_wasApart = false;
};
