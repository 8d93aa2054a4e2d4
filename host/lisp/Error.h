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
    const char* what() const noexcept override { return utf8_.c_str(); }

    const std::u16string& message() const { return message_; }
    const std::u16string& file() const { return file_; }
    // From 1; 0 where unknown.
    int line() const { return line_; }
    // In lower case, as it was called; empty where unknown.
    const std::u16string& function() const { return function_; }
    // From 1; 0 where the error is about no single argument.
    int argument() const { return argument_; }

    // Fills in the place unless it is known already.
    void locate(std::u16string_view file, int line, std::u16string_view function);

  private:
    std::u16string message_;
    std::u16string file_;
    std::u16string function_;
    std::string utf8_;
    int line_ = 0;
    int argument_ = 0;
    bool located_ = false;
};

// The program was stopped from outside (Interpreter::interrupt) or used up its steps. No Lisp handler catches
// it.
class Interrupted : public Error {
  public:
    using Error::Error;
};

}  // namespace lisp
