// A chain of texts and of lists of texts, as Lisp gets them.
#pragma once

#include "src/records/Record.h"
#include "src/shell/LispInvoke.h"

class ResultChain {
  public:
    // The fields one by one.
    void appendFields(const Record& record);
    // The fields as a list.
    void appendRecord(const Record& record);

    const HostValue* get() const { return m_head.get(); }

  private:
    HostValue& append(int type);

    OwnedChain m_head;
    HostValue* m_tail = nullptr;
};
