// A Lisp value: one machine word that is a number, nil or T itself, or refers to an object of the
// interpreter.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace lisp {

struct Cons;
struct String;
struct Symbol;
struct Function;
struct File;

// Copies are free. A value that refers to an object stays alive while Lisp can reach it, while it is an
// argument of the native function that runs, or while a Root holds it. Objects are collected only while Lisp
// code runs (Interpreter::eval, call, apply, load...), never by making a value: C++ code that calls none of
// these between getting a value and its last use needs no Root.
class Value {
  public:
    constexpr Value() : m_bits(NIL) {}

    static constexpr Value nil() { return Value(NIL); }
    // "No value": nil wherever it is used, but a prompt prints nothing for it.
    static constexpr Value none() { return Value(NONE); }
    static constexpr Value truth(bool condition = true) { return Value(condition ? TRUTH : NIL); }
    static constexpr Value integer(int32_t number) { return Value(tagged(INTEGER_TAG, uint32_t(number))); }
    static constexpr Value real(double number) {
        return number == number ? Value(std::bit_cast<uint64_t>(number)) : Value(NOT_A_NUMBER);
    }
    static Value of(const Cons* object) { return reference(CONS_TAG, object); }
    static Value of(const String* object) { return reference(STRING_TAG, object); }
    static Value of(const Symbol* object) { return reference(SYMBOL_TAG, object); }
    static Value of(const Function* object) { return reference(FUNCTION_TAG, object); }
    static Value of(const File* object) { return reference(FILE_TAG, object); }

    constexpr bool isNil() const { return m_bits - NIL <= 1; }
    constexpr bool isNone() const { return m_bits == NONE; }
    constexpr bool isTruth() const { return m_bits == TRUTH; }
    constexpr bool isInteger() const { return tag() == INTEGER_TAG; }
    constexpr bool isReal() const { return tag() < INTEGER_TAG; }
    constexpr bool isNumber() const { return tag() <= INTEGER_TAG; }
    constexpr bool isCons() const { return tag() == CONS_TAG; }
    constexpr bool isList() const { return isCons() || isNil(); }
    constexpr bool isString() const { return tag() == STRING_TAG; }
    constexpr bool isSymbol() const { return tag() == SYMBOL_TAG; }
    constexpr bool isFunction() const { return tag() == FUNCTION_TAG; }
    constexpr bool isFile() const { return tag() == FILE_TAG; }

    // Each reader demands a value of its kind.
    constexpr int32_t asInteger() const { return int32_t(uint32_t(m_bits)); }
    constexpr double asReal() const { return std::bit_cast<double>(m_bits); }
    // An integer or a real.
    constexpr double asNumber() const { return isInteger() ? asInteger() : asReal(); }
    Cons* asCons() const { return pointer<Cons>(); }
    Symbol* asSymbol() const { return pointer<Symbol>(); }
    Function* asFunction() const { return pointer<Function>(); }
    File* asFile() const { return pointer<File>(); }
    String* asStringObject() const { return pointer<String>(); }
    // The text, valid while the value lives.
    const std::u16string& asString() const;
    // The name in upper case; also of T.
    std::u16string_view symbolName() const;
    // First element and rest of a list; nil of nil.
    Value car() const;
    Value cdr() const;

    constexpr Value orNil() const { return m_bits == NONE ? nil() : *this; }
    // The same number or the same object.
    constexpr bool operator==(Value other) const {
        return m_bits == other.m_bits || (isNil() && other.isNil());
    }

  private:
    // Reals are stored as they are; the patterns above all of theirs carry a tag in the upper 16 bits.
    static constexpr uint64_t INTEGER_TAG = 0xFFF9, CONS_TAG = 0xFFFA, STRING_TAG = 0xFFFB,
                              SYMBOL_TAG = 0xFFFC, FUNCTION_TAG = 0xFFFD, FILE_TAG = 0xFFFE;
    static constexpr uint64_t NIL = 0xFFFF'0000'0000'0000, NONE = NIL + 1, TRUTH = NIL + 2;
    static constexpr uint64_t NOT_A_NUMBER = 0x7FF8'0000'0000'0000;

    explicit constexpr Value(uint64_t bits) : m_bits(bits) {}
    static constexpr uint64_t tagged(uint64_t tag, uint64_t payload) { return tag << 48 | payload; }
    static Value reference(uint64_t tag, const void* object) {
        return Value(tagged(tag, reinterpret_cast<uintptr_t>(object)));
    }
    constexpr uint64_t tag() const { return m_bits >> 48; }
    template <class T>
    T* pointer() const {
        return reinterpret_cast<T*>(m_bits & 0x0000'FFFF'FFFF'FFFF);
    }

    uint64_t m_bits;
};

// Where a form stands in its source: file numbers count from 1, 0 for none.
struct Place {
    uint32_t file = 0;
    uint32_t line = 0;
};

// The elements of a list, for a range-for; ends at the first tail that is no list.
class Elements {
  public:
    class Iterator {
      public:
        explicit Iterator(Value rest) : m_rest(rest) {}
        Value operator*() const { return m_rest.car(); }
        Iterator& operator++() {
            m_rest = m_rest.cdr();
            return *this;
        }
        bool operator==(std::default_sentinel_t) const { return !m_rest.isCons(); }

      private:
        Value m_rest;
    };

    explicit Elements(Value list) : m_list(list) {}
    Iterator begin() const { return Iterator(m_list); }
    std::default_sentinel_t end() const { return {}; }

  private:
    Value m_list;
};

}  // namespace lisp
