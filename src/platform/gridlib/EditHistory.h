// What a person changed, step by step, to be undone and redone. Portable.
#pragma once

#include <cstdint>
#include <deque>
#include <vector>

#include "src/platform/gridlib/CellText.h"

class EditHistory {
  public:
    struct Change {
        uint32_t row, col;
        CellText before, after;
    };
    using Step = std::vector<Change>;

    // Forgets the steps that were undone, and the oldest ones beyond MOST_CHANGES. An empty step is none.
    void record(Step step);
    // The step to undo, or to do again; null where there is none. Valid until the next call.
    const Step* back();
    const Step* forward();

    bool hasBack() const { return m_done > 0; }
    bool hasForward() const { return m_done < m_steps.size(); }

    static constexpr size_t MOST_CHANGES = 500'000;

  private:
    std::deque<Step> m_steps;
    size_t m_done = 0;  // how many of them are done
    size_t m_changes = 0;
};
