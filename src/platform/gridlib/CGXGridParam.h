// The switches of a grid. Portable.
#pragma once

class CGXGridParam {
  public:
    // Whether what a person changes is recorded, to be undone by the person. What programs change never is.
    void EnableUndo(bool enable) { m_undo = enable; }
    bool IsEnableUndo() const { return m_undo; }

    // Locked, read-only cells refuse the changes of programs too. A person can't change them either way.
    void SetLockReadOnly(bool lock) { m_lockReadOnly = lock; }
    bool IsLockReadOnly() const { return m_lockReadOnly; }

    // What a person may drag. Columns and rows stay where they are: no grid here asks for their moving, so
    // these two are only kept.
    void EnableMoveCols(bool enable) { m_moveCols = enable; }
    bool IsEnableMoveCols() const { return m_moveCols; }
    void EnableMoveRows(bool enable) { m_moveRows = enable; }
    bool IsEnableMoveRows() const { return m_moveRows; }
    void EnableTrackRowHeight(bool enable) { m_trackRowHeight = enable; }
    bool IsEnableTrackRowHeight() const { return m_trackRowHeight; }
    void EnableTrackColWidth(bool enable) { m_trackColWidth = enable; }
    bool IsEnableTrackColWidth() const { return m_trackColWidth; }

    // Lines between the cells as thin as one pixel at every scale, and none within merged cells; else a line
    // is as thick as the scale makes it.
    void SetNewGridLineMode(bool thin) { m_thinLines = thin; }
    bool IsNewGridLineMode() const { return m_thinLines; }

  private:
    bool m_undo = true;
    bool m_lockReadOnly = true;
    bool m_moveCols = false;
    bool m_moveRows = false;
    bool m_trackRowHeight = true;
    bool m_trackColWidth = true;
    bool m_thinLines = true;
};
