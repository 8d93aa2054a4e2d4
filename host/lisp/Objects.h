// The objects behind values. All belong to the Heap, but for symbols, which live as long as their table.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "host/lisp/Call.h"
#include "host/lisp/Value.h"

namespace lisp {

struct Node;
struct Code;

enum class ObjectKind : uint8_t { String, Function, File, Code };

struct Object {
    explicit Object(ObjectKind ofKind) : kind(ofKind) {}
    Object* next = nullptr;
    ObjectKind kind;
    bool marked = false;
};

// Never changed once Lisp can see it, so that the analysis kept with it stays right and no list is circular.
struct Cons {
    Place place;
    // The analysis of this list as a form, made when it is first evaluated.
    Code* code;
    Value car;
    Value cdr;
};

struct String : Object {
    explicit String(std::u16string content) : Object(ObjectKind::String), text(std::move(content)) {}
    std::u16string text;
};

struct Symbol {
    std::u16string name;
    Value value;
    // Counts in SpecialForms' table, from 1; 0 for an ordinary symbol.
    uint8_t specialForm = 0;
};

struct Function : Object {
    Function() : Object(ObjectKind::Function) {}
    // Null for a lambda.
    Symbol* name = nullptr;

    NativeFunction native = nullptr;
    void* userData = nullptr;
    uint32_t minimum = 0;
    uint32_t maximum = UINT32_MAX;

    // A Lisp function: `minimum` parameters first, then locals.
    std::vector<Symbol*> variables;
    Code* code = nullptr;
};

struct File : Object {
    File() : Object(ObjectKind::File) {}
    std::u16string name;
    bool reading = false;
    // What there is to read, decoded, and how far it was read.
    std::u16string content;
    size_t position = 0;
    std::ofstream output;
    bool open = true;
};

}  // namespace lisp
