// A record number that no record has. Portable.
#pragma once

#include <exception>

// kept: leaves the plug-in as an exception, and the host makes an error of its Lisp of it.
class WexIndexError : public std::exception {
  public:
    const char* what() const noexcept override { return "Index Out of Range."; }
};
