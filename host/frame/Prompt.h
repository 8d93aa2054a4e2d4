// A dialogue with Lisp line by line: on the terminal and on the main frame's command line. Portable.
#pragma once

#include <functional>
#include <string>

#include "host/lisp/Interpreter.h"

class Prompt {
  public:
    // `report` is given the text of each Lisp error.
    Prompt(lisp::Interpreter& lisp, std::function<void(const std::u16string&)> report)
        : m_lisp(lisp), m_report(std::move(report)) {}

    // Takes a line. What is a whole form by then is evaluated and its value printed; a single word that names
    // a command (the function `c:WORD`) calls it. An error is reported and ends nothing.
    void enter(std::u16string_view line);
    // No more lines come: a form that needs more is an error.
    void finish();
    // Whether the form begun on earlier lines needs more.
    bool isContinuing() const { return !m_pending.empty(); }
    // Forgets what was begun.
    void cancel() { m_pending.clear(); }

  private:
    lisp::Value evaluate(const std::u16string& text);

    lisp::Interpreter& m_lisp;
    std::function<void(const std::u16string&)> m_report;
    std::u16string m_pending;
};
