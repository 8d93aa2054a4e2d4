// What a program changes is not for the person to undo, and read-only cells take it. Portable.
#pragma once

#include "src/platform/gridlib/CGXGridParam.h"

// Nothing is recorded while it lives.
class UndoPause {
  public:
    explicit UndoPause(CGXGridParam& param) : m_param(param) { m_param.EnableUndo(false); }
    ~UndoPause() { m_param.EnableUndo(true); }
    UndoPause(const UndoPause&) = delete;
    UndoPause& operator=(const UndoPause&) = delete;

  private:
    CGXGridParam& m_param;
};

// Besides, read-only cells can be written while it lives.
class EditBracket {
  public:
    explicit EditBracket(CGXGridParam& param) : m_pause(param), m_param(param) {
        m_param.SetLockReadOnly(false);
    }
    ~EditBracket() { m_param.SetLockReadOnly(true); }
    EditBracket(const EditBracket&) = delete;
    EditBracket& operator=(const EditBracket&) = delete;

  private:
    UndoPause m_pause;
    CGXGridParam& m_param;
};
