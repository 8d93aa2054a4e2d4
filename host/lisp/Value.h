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
    constexpr Value() : bits_(kNil) {}

    static constexpr Value nil() { return Value(kNil); }
    // "No value": nil wherever it is used, but a prompt prints nothing for it.
    static constexpr Value none() { return Value(kNone); }
    static constexpr Value truth(bool condition = true) { return Value(condition ? kTruth : kNil); }
    static constexpr Value integer(int32_t number) { return Value(tagged(kInteger, uint32_t(number))); }
    static constexpr Value real(double number) {
        return number == number ? Value(std::bit_cast<uint64_t>(number)) : Value(kNotANumber);
    }
    static Value of(const Cons* object) { return reference(kCons, object); }
    static Value of(const String* object) { return reference(kString, object); }
    static Value of(const Symbol* object) { return reference(kSymbol, object); }
    static Value of(const Function* object) { return reference(kFunction, object); }
    static Value of(const File* object) { return reference(kFile, object); }

    constexpr bool isNil() const { return bits_ - kNil <= 1; }
    constexpr bool isNone() const { return bits_ == kNone; }
    constexpr bool isTruth() const { return bits_ == kTruth; }
    constexpr bool isInteger() const { return tag() == kInteger; }
    constexpr bool isReal() const { return tag() < kInteger; }
    constexpr bool isNumber() const { return tag() <= kInteger; }
    constexpr bool isCons() const { return tag() == kCons; }
    constexpr bool isList() const { return isCons() || isNil(); }
    constexpr bool isString() const { return tag() == kString; }
    constexpr bool isSymbol() const { return tag() == kSymbol; }
    constexpr bool isFunction() const { return tag() == kFunction; }
    constexpr bool isFile() const { return tag() == kFile; }

    // Each reader demands a value of its kind.
    constexpr int32_t asInteger() const { return int32_t(uint32_t(bits_)); }
    constexpr double asReal() const { return std::bit_cast<double>(bits_); }
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

    constexpr Value orNil() const { return bits_ == kNone ? nil() : *this; }
    // The same number or the same object.
    constexpr bool operator==(Value other) const {
        return bits_ == other.bits_ || (isNil() && other.isNil());
    }

  private:
    // Reals are stored as they are; the patterns above all of theirs carry a tag in the upper 16 bits.
    static constexpr uint64_t kInteger = 0xFFF9, kCons = 0xFFFA, kString = 0xFFFB, kSymbol = 0xFFFC,
                              kFunction = 0xFFFD, kFile = 0xFFFE;
    static constexpr uint64_t kNil = 0xFFFF'0000'0000'0000, kNone = kNil + 1, kTruth = kNil + 2;
    static constexpr uint64_t kNotANumber = 0x7FF8'0000'0000'0000;

    explicit constexpr Value(uint64_t bits) : bits_(bits) {}
    static constexpr uint64_t tagged(uint64_t tag, uint64_t payload) { return tag << 48 | payload; }
    static Value reference(uint64_t tag, const void* object) {
        return Value(tagged(tag, reinterpret_cast<uintptr_t>(object)));
    }
    constexpr uint64_t tag() const { return bits_ >> 48; }
    template <class T>
    T* pointer() const {
        return reinterpret_cast<T*>(bits_ & 0x0000'FFFF'FFFF'FFFF);
    }

    uint64_t bits_;
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
        explicit Iterator(Value rest) : rest_(rest) {}
        Value operator*() const { return rest_.car(); }
        Iterator& operator++() {
            rest_ = rest_.cdr();
            return *this;
        }
        bool operator==(std::default_sentinel_t) const { return !rest_.isCons(); }

      private:
        Value rest_;
    };

    explicit Elements(Value list) : list_(list) {}
    Iterator begin() const { return Iterator(list_); }
    std::default_sentinel_t end() const { return {}; }

  private:
    Value list_;
};

}  // namespace lisp
