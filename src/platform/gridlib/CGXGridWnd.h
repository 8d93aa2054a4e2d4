// A window that shows a grid and lets a person work in it. Window class "GXWND".
//
// A window of that class, from a template, becomes a grid when an object is attached to it and Initialize
// called.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "src/platform/base/GridQuery.h"
#include "src/platform/gridlib/CGXGridCore.h"
#include "src/platform/gridlib/CellEditor.h"
#include "src/platform/gridlib/GridLook.h"
#include "src/platform/gridlib/GridPainter.h"
#include "src/platform/gridlib/TrackView.h"
#include "src/platform/mfc/CWnd.h"

class CGXGridWnd : public CWnd, public CGXGridCore, private CellEditor::Owner {
    DECLARE_DYNAMIC(CGXGridWnd)

  public:
    CGXGridWnd() = default;

    // Makes the attached window ready; its font is the dialog's.
    void Initialize();

    const MessageMap& messageMap() const override;

    // A paste took so many cells, refused others, which are marked until the next change, and had more than
    // the table has a place for. Called before the events of the cells that changed.
    virtual void OnPasted(size_t /*taken*/, size_t /*refused*/, size_t /*outside*/) {}
    // A person wanted to copy, paste or empty more than MOST_CELLS at a time; nothing was done.
    virtual void OnTooManyCells() { MessageBeep(MB_ICONWARNING); }
    static constexpr uint64_t MOST_CELLS = 5'000'000;

    // What a person can have done to the grid besides moving and typing; each has its key but for the last,
    // which makes every column as wide as its texts.
    enum class Command { cut = 1, copy, paste, undo, redo, selectAll, fitColumns };
    bool canDo(Command command) const;
    void doCommand(Command command);
    // In client pixels; empty without a current cell.
    RECT currentCellRect() const;

  protected:
    void OnLButtonDown(UINT keys, POINT at);
    LRESULT WindowProc(UINT message, WPARAM w, LPARAM l) override;

    void cellsChanged(const CGXRange& range) override;
    void tableResized() override;
    void selectionMoved(bool scroll) override;

  private:
    enum class Gesture { none, selecting, sizingColumn, sizingRow };
    enum class End { take, giveUp };

    // --- CGXGridWnd.cpp: showing
    GridScene scene() const;
    void refreshLook();
    void invalidate(const RECT& rect);
    void invalidateAll();
    bool eraseBackground(HDC) { return true; }
    void paint();
    LRESULT onSetFont(WPARAM w, LPARAM l);
    LRESULT onGetFont(WPARAM w, LPARAM l);
    void onSize(UINT how, int width, int height);
    void onEnable(bool enabled);
    void takeCurrent();
    void onFocus(CWnd* former);
    void onFocusLost(CWnd* next);

    // --- GridScrolling.cpp
    void showScrolled(bool moved);
    void settleLater();
    LRESULT onSettle(WPARAM w, LPARAM l);
    void setBar(int bar, const TrackView& view);
    void onVScroll(UINT code, UINT position);
    void onHScroll(UINT code, UINT position);
    bool scroll(int bar, TrackView& view, UINT code);
    void onWheel(UINT keys, int delta, POINT at);
    LRESULT onWheelAcross(WPARAM w, LPARAM l);

    // --- GridMouse.cpp
    CellPlace hit(POINT at) const;
    CellPlace hitWithin(POINT at) const;
    Gesture borderAt(POINT at, CellPlace& track) const;
    bool hasChoiceArrow(CellPlace place, POINT at) const;
    void onMouseMove(UINT keys, POINT at);
    void onLButtonUp(UINT keys, POINT at);
    void onLButtonDblClk(UINT keys, POINT at);
    void onCaptureChanged(CWnd* next);
    void onTimer(UINT_PTR id);
    bool onSetCursor(CWnd* window, UINT hit, UINT message);
    void beginSelection(CellPlace at, bool extend, bool add);
    void dragTo(POINT at);
    void dragBorder(POINT at);
    Gesture dropGesture();
    void endGesture();
    void fitColumn(uint32_t col);
    void fitRow(uint32_t row);

    // --- GridKeys.cpp
    LRESULT onGetDlgCode(WPARAM w, LPARAM l);
    LRESULT onKeyDown(WPARAM key, LPARAM l);
    LRESULT onSysKeyDown(WPARAM key, LPARAM l);
    void onChar(UINT c, UINT flags);
    bool moveByKey(UINT key, bool control, bool shift);
    bool commandByKey(UINT key, bool control, bool shift);
    CellPlace neighbour(CellPlace from, UINT key, bool control) const;
    // The column of a cell that up and down stay in.
    uint32_t columnOf(CellPlace at) const { return at == m_column.current ? m_column.col : at.col; }
    void moveTo(CellPlace to, bool extend);
    void tellSelection(bool dragging, bool key);

    // --- GridEditing.cpp
    bool startEditing(bool byTyping);
    void closeEditor(End end);
    void placeEditor();
    void refreshOpenCell();
    void editorChanged() override;
    void editorEnds(CellEditor::Ending ending) override;
    bool isEditableAt(CellPlace at) const;
    void tellModified(const std::vector<CellPlace>& changed);
    void tellModified(CellPlace at);
    std::vector<GridTable::Entry> entriesFor(CellPlace at, const CellText& text) const;
    void toggle(CellPlace at);
    void emptySelection();
    void undoOrRedo(bool undo);

    // --- GridPasting.cpp
    std::optional<CGXRange> copied() const;
    bool copy();
    void paste();

    // --- GridAnswers.cpp
    bool answer(GridQuestion question, void* record);
    void tell(GridTableLook& table);
    bool tell(GridCellLook& cell);
    bool tell(GridHit& point) const;
    bool select(const GridTableLook& wanted);
    LRESULT onGetObject(WPARAM w, LPARAM l);
    LRESULT onSelect(WPARAM place, LPARAM flags);
    LRESULT onCellAt(WPARAM x, LPARAM y);

    // --- GridNotices.cpp
    void noticeSelection();
    void noticeValue(CellPlace at);
    void noticeCurrentValue();

    TrackView m_rows{m_table.heights()};
    TrackView m_cols{m_table.widths()};
    GridLook m_look;
    HFONT m_font = nullptr;  // borrowed from who set it
    CellEditor m_editor{*this};
    CString m_textBefore;              // of the open cell, in the table
    CString m_textToldLast;            // of the open cell, by the last event
    std::vector<CellPlace> m_refused;  // in order

    // What will be painted anyway: further changes there need no call of the platform.
    std::vector<RECT> m_pending;
    bool m_allPending = false;
    bool m_settlesLater = false;
    std::array<TrackView::Bar, 2> m_bars{};

    Gesture m_gesture = Gesture::none;
    CellPlace m_pressed;  // the cell, or the column or row that is sized
    int m_pressedAt = 0;  // where its border was taken, in pixels from its start
    POINT m_draggedTo{};
    // The column in which up and down go on from the current cell, which may be several merged ones.
    struct Column {
        CellPlace current;
        uint32_t col;
    };
    Column m_column{};
    int m_wheelRest = 0;

    // The current cell and its text, as assistive programs know them.
    OpenCell m_noticed{};

    // What was told last to who asked.
    std::vector<GridArea> m_toldAreas;
    CString m_toldText, m_toldChoices;
};
