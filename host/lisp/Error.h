// What a Lisp program did wrong.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace lisp {

// Thrown with a message alone; the interpreter adds file, line and function of the call that was running
// before it hands the error to a Lisp handler or to its caller.
class Error : public std::exception {
  public:
    explicit Error(std::u16string message, int argument = 0);

    // The whole line, such as `demo.lsp:12: (strcat): argument 2: expected a string, got 5`.
    std::u16string text() const;
    // The same in UTF-8.
    const char* what() const noexcept override { return m_utf8.c_str(); }

    const std::u16string& message() const { return m_message; }
    const std::u16string& file() const { return m_file; }
    // From 1; 0 where unknown.
    int line() const { return m_line; }
    // In lower case, as it was called; empty where unknown.
    const std::u16string& function() const { return m_function; }
    // From 1; 0 where the error is about no single argument.
    int argument() const { return m_argument; }

    // Fills in the place unless it is known already.
    void locate(std::u16string_view file, int line, std::u16string_view function);

  private:
    std::u16string m_message;
    std::u16string m_file;
    std::u16string m_function;
    std::string m_utf8;
    int m_line = 0;
    int m_argument = 0;
    bool m_located = false;
};

// The program was stopped from outside (Interpreter::interrupt) or used up its steps. No Lisp handler catches
// it.
class Interrupted : public Error {
  public:
    using Error::Error;
};

}  // namespace lisp
