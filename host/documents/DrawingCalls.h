// What the Lisp functions of drawings share: the current drawing, its block and pen, arguments and results.
#pragma once

#include <vector>

#include "host/documents/Documents.h"
#include "host/lisp/Interpreter.h"

namespace drawing_calls {

struct Row {
    const char16_t* name;
    lisp::NativeFunction function;
    int minimum, maximum;
};
template <size_t COUNT>
void define(lisp::Interpreter& lisp, const Row (&rows)[COUNT]) {
    for (const Row& row : rows) lisp.defineNative(row.name, row.function, nullptr, row.minimum, row.maximum);
}

// The families; docs/drawings.md tells their functions.
void defineEntityFunctions(lisp::Interpreter& lisp);
void definePenFunctions(lisp::Interpreter& lisp);
void defineQuestions(lisp::Interpreter& lisp);

// Each throws lisp::Error where there is none.
HostDocument& document();
cad::Drawing& drawing();
cad::Block& blockNamed(const std::u16string& name);
// In which things are made and asked.
cad::Block& block();
// Has the screen show what was changed.
void changed();

// The argument at `index`; another kind is told by Call::expected.
HostPoint3d point(lisp::Call& call, size_t index);
std::vector<HostPoint3d> points(lisp::Call& call, size_t index, size_t least);
double number(lisp::Call& call, size_t index);
double positive(lisp::Call& call, size_t index);
double numberOr(lisp::Call& call, size_t index, double otherwise);
HostVector3d directionOr(lisp::Call& call, size_t index, const HostVector3d& otherwise);
// The number of an entity of the current block.
size_t entityNumber(lisp::Call& call, size_t index);

lisp::Value listOf(lisp::Call& call, const HostPoint3d& p);
inline lisp::Value whole(size_t number) { return lisp::Value::integer(static_cast<int32_t>(number)); }

}  // namespace drawing_calls
