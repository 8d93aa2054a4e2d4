// Writes values as text.
#pragma once

#include <string>

#include "host/lisp/Value.h"

namespace lisp {

class Machine;

// As prin1 writes it where `forReading`, else as princ.
std::u16string printed(const Machine& machine, Value value, bool forReading);

// As prin1 writes it, for a message: cut off where it is long.
std::u16string abbreviated(const Machine& machine, Value value);

}  // namespace lisp
