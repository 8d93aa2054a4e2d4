// Exceptions at the border to the platform. None may leave a window procedure, hook, timer or enumeration
// callback: the platform's frames in between would be skipped, or swallow it. So such a callback is noexcept,
// keeps what it catches here, and the library raises it again when control is back in its own frames.
#pragma once

// Keeps the exception that is being handled, unless an earlier one waits: the first tells what went wrong.
// Ends the innermost modal loop.
void keepException() noexcept;

bool hasKeptException() noexcept;

// Raises the kept exception, which is then kept no more; does nothing where there is none.
void raiseKeptException();
