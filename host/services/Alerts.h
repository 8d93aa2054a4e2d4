// Messages to the person, and what was said.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/services/Console.h"

class Alerts {
  public:
    explicit Alerts(Console& console) : m_console(console) {}

    // Records the text, prints it as a line `[alert] text`, and waits in a message box until the person has
    // read it, unless nobody is there.
    void show(std::wstring_view text);
    // The same without the box.
    void record(std::wstring_view text);
    // The texts since the last call, oldest first.
    std::vector<std::wstring> take();

    // Whether one waits in a box at this moment.
    bool isShowing() const { return m_showing; }

    // Whether a person has to see a box: not while a session plays, nor headless.
    void setAttended(bool attended) { m_attended = attended; }

  private:
    Console& m_console;
    std::vector<std::wstring> m_texts;
    bool m_attended = true;
    bool m_showing = false;
};
