// An argument that a container or a window can't take, such as an index out of its range.
#pragma once

#include <stdexcept>

class CInvalidArgException : public std::invalid_argument {
  public:
    CInvalidArgException() : std::invalid_argument("Invalid argument.") {}
};

[[noreturn]] inline void AfxThrowInvalidArgException() { throw CInvalidArgException(); }
