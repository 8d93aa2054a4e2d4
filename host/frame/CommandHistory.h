// The lines that were entered, as Up and Down walk through them. Portable.
#pragma once

#include <string>
#include <vector>

class CommandHistory {
  public:
    // Behind all others, and the walk starts anew. An empty line or a repetition of the last one isn't kept.
    void add(const std::wstring& line);
    // The line before the one that was shown last; stays at the oldest. `typed`, what stood there when the
    // walk began, comes back at its other end.
    const std::wstring& older(const std::wstring& typed);
    const std::wstring& newer(const std::wstring& typed);

  private:
    void beginWalk(const std::wstring& typed);

    std::vector<std::wstring> m_lines;
    std::wstring m_typed;
    size_t m_at = 0;  // m_lines.size(): what was typed
};
