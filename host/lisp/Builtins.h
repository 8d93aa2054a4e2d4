// The functions of the language, by family.
#pragma once

#include <span>

#include "host/lisp/Call.h"

namespace lisp {

class Machine;

void defineControlFunctions(Interpreter& lisp);
void definePredicates(Interpreter& lisp);
void defineListFunctions(Interpreter& lisp);
void defineSequenceFunctions(Interpreter& lisp);
void defineNumberFunctions(Interpreter& lisp);
void defineStringFunctions(Interpreter& lisp);
void defineOutputFunctions(Interpreter& lisp);
void defineFileFunctions(Interpreter& lisp);

// Known to the analysis, which does them in place for two numbers.
Value addNumbers(Call& call);
Value subtractNumbers(Call& call);
Value multiplyNumbers(Call& call);
Value divideNumbers(Call& call);
Value remainderOfNumbers(Call& call);
Value compareEqual(Call& call);
Value compareLess(Call& call);
Value compareGreater(Call& call);
Value compareLessOrEqual(Call& call);
Value compareGreaterOrEqual(Call& call);

struct Definition {
    const char16_t* name;
    NativeFunction function;
    int minimum;
    int maximum;
};
void defineAll(Interpreter& lisp, std::span<const Definition> functions);

// The same number, string, object, or lists of such. Numbers may differ by `fuzz`.
bool isEqual(Machine& machine, Value a, Value b, double fuzz = 0);

}  // namespace lisp
