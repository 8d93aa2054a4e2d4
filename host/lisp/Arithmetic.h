// Arithmetic on two numbers. An operation answers false where it does not give a plain result (an overflow of
// integers, a division by zero); the caller then knows a wider way or the error.
#pragma once

#include <cmath>
#include <cstdint>
#include <functional>

#include "host/lisp/Value.h"

namespace lisp {

struct Add {
    static bool integers(int32_t a, int32_t b, Value& result) {
        int32_t sum;
        if (__builtin_add_overflow(a, b, &sum)) return false;
        result = Value::integer(sum);
        return true;
    }
    static bool reals(double a, double b, Value& result) {
        result = Value::real(a + b);
        return true;
    }
};

struct Subtract {
    static bool integers(int32_t a, int32_t b, Value& result) {
        int32_t difference;
        if (__builtin_sub_overflow(a, b, &difference)) return false;
        result = Value::integer(difference);
        return true;
    }
    static bool reals(double a, double b, Value& result) {
        result = Value::real(a - b);
        return true;
    }
};

struct Multiply {
    static bool integers(int32_t a, int32_t b, Value& result) {
        int32_t product;
        if (__builtin_mul_overflow(a, b, &product)) return false;
        result = Value::integer(product);
        return true;
    }
    static bool reals(double a, double b, Value& result) {
        result = Value::real(a * b);
        return true;
    }
};

struct Divide {
    static bool integers(int32_t a, int32_t b, Value& result) {
        if (b == 0 || (a == INT32_MIN && b == -1)) return false;
        result = Value::integer(a / b);
        return true;
    }
    static bool reals(double a, double b, Value& result) {
        result = Value::real(a / b);
        return b != 0;
    }
};

struct Remainder {
    static bool integers(int32_t a, int32_t b, Value& result) {
        if (b == 0) return false;
        result = Value::integer(b == -1 ? 0 : a % b);
        return true;
    }
    static bool reals(double a, double b, Value& result) {
        result = Value::real(std::fmod(a, b));
        return b != 0;
    }
};

// A comparison as an operation.
template <class Relation>
struct Compare {
    static bool integers(int32_t a, int32_t b, Value& result) {
        result = Value::truth(Relation()(a, b));
        return true;
    }
    static bool reals(double a, double b, Value& result) {
        result = Value::truth(Relation()(a, b));
        return true;
    }
};

using Equal = Compare<std::equal_to<>>;
using Less = Compare<std::less<>>;
using Greater = Compare<std::greater<>>;
using LessOrEqual = Compare<std::less_equal<>>;
using GreaterOrEqual = Compare<std::greater_equal<>>;

}  // namespace lisp
