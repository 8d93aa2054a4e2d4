// Lisp values as chains and back: what a plug-in sees of Lisp. Portable.
//
// An integer in 16 bits is HV_SHORT, a larger one HV_LONG; a real HV_REAL; a string HV_STRING; T and nil
// HV_TRUE and HV_NIL; a list of exactly two reals HV_POINT; any other list flat between HV_LIST_BEGIN and
// HV_LIST_END, nested ones too, the tail of a dotted one as its last element. Another symbol crosses as the
// string of its name, a function or an open file as nil.
#pragma once

#include <span>

#include "host/lisp/Interpreter.h"
#include "host/services/ValueChain.h"

// The values one behind the other; null for none. The caller releases it; with `memory` it goes with that.
HostValue* chainOf(std::span<const lisp::Value> values, std::pmr::memory_resource* memory = nullptr);

// The elements of the chain as a list; nil for null.
lisp::Value listOfChain(lisp::Interpreter& lisp, const HostValue* chain);

// The value of a chain of one element, and otherwise its elements as a list.
lisp::Value valueOfChain(lisp::Interpreter& lisp, const HostValue* chain);
