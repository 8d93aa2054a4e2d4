// The failure of a file operation.
#pragma once

#include <stdexcept>
#include <string>

class CFileException : public std::runtime_error {
  public:
    // The library's causes that are used here.
    enum Cause { none = 0, generic = 1, fileNotFound = 2, badPath = 3 };

    CFileException(int cause, long osError, std::string text)
        : std::runtime_error(text), m_cause(cause), m_lOsError(osError) {}

    int m_cause;
    long m_lOsError;
};
