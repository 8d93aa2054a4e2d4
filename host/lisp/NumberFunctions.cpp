// Arithmetic and comparison.
#include <cmath>
#include <numbers>
#include <numeric>

#include "host/lisp/Arithmetic.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Machine.h"

namespace lisp {

namespace {

// One step of arithmetic: integers as long as the result is one, else reals.
template <class Operation>
Value combine(Value a, Value b) {
    Value result;
    bool done = a.isInteger() && b.isInteger() && Operation::integers(a.asInteger(), b.asInteger(), result);
    if (!done && !Operation::reals(a.asNumber(), b.asNumber(), result)) throw Error(u"division by zero");
    return result;
}

template <class Operation>
Value fold(Call& call) {
    for (size_t i = 0; i < call.count(); ++i) call.number(i);
    Value result = call[0];
    for (size_t i = 1; i < call.count(); ++i) result = combine<Operation>(result, call[i]);
    return result;
}

// Whether each neighbouring pair compares so: numbers with numbers or strings with strings.
template <class Relation>
Value compareChain(Call& call) {
    for (size_t i = 0; i + 1 < call.count(); ++i) {
        Value a = call[i], b = call[i + 1];
        bool holds;
        if (a.isNumber() && b.isNumber())
            holds = Relation()(a.asNumber(), b.asNumber());
        else if (a.isString() && b.isString())
            holds = Relation()(a.asString(), b.asString());
        else if (a.isNumber() || a.isString())
            call.expected(i + 1, a.isNumber() ? "a number" : "a string");
        else
            call.expected(i, "a number or a string");
        if (!holds) return Value::nil();
    }
    return Value::truth();
}

// An integer where the real is one in 32 bits.
Value narrowed(double number) {
    bool fits = number >= INT32_MIN && number <= INT32_MAX;
    return fits ? Value::integer(int32_t(number)) : Value::real(number);
}

bool allIntegers(const Call& call) {
    for (Value value : call.arguments)
        if (!value.isInteger()) return false;
    return true;
}

}  // namespace

Value addNumbers(Call& call) { return call.count() ? fold<Add>(call) : Value::integer(0); }
Value multiplyNumbers(Call& call) { return call.count() ? fold<Multiply>(call) : Value::integer(1); }
Value divideNumbers(Call& call) { return fold<Divide>(call); }
Value remainderOfNumbers(Call& call) { return fold<Remainder>(call); }

Value subtractNumbers(Call& call) {
    if (call.count() > 1) return fold<Subtract>(call);
    call.number(0);
    return combine<Subtract>(Value::integer(0), call[0]);
}

Value compareEqual(Call& call) {
    for (size_t i = 0; i + 1 < call.count(); ++i) {
        bool equal = call[i] == call[i + 1] || (call[i].isNumber() && call[i + 1].isNumber() &&
                                                call[i].asNumber() == call[i + 1].asNumber());
        bool sameText =
            call[i].isString() && call[i + 1].isString() && call[i].asString() == call[i + 1].asString();
        if (!equal && !sameText) return Value::nil();
    }
    return Value::truth();
}

Value compareLess(Call& call) { return compareChain<std::less<>>(call); }
Value compareGreater(Call& call) { return compareChain<std::greater<>>(call); }
Value compareLessOrEqual(Call& call) { return compareChain<std::less_equal<>>(call); }
Value compareGreaterOrEqual(Call& call) { return compareChain<std::greater_equal<>>(call); }

namespace {

Value compareUnequal(Call& call) { return Value::truth(compareEqual(call).isNil()); }

Value increment(Call& call) {
    call.number(0);
    return combine<Add>(call[0], Value::integer(1));
}

Value decrement(Call& call) {
    call.number(0);
    return combine<Subtract>(call[0], Value::integer(1));
}

Value absolute(Call& call) {
    if (call[0].isInteger()) return narrowed(std::abs(call.number(0)));
    return Value::real(std::abs(call.number(0)));
}

template <class Relation>
Value extreme(Call& call) {
    double result = call.number(0);
    for (size_t i = 1; i < call.count(); ++i)
        if (Relation()(call.number(i), result)) result = call.number(i);
    return allIntegers(call) ? narrowed(result) : Value::real(result);
}

template <double (*Compute)(double)>
Value ofReal(Call& call) {
    return Value::real(Compute(call.number(0)));
}

Value squareRoot(Call& call) {
    if (call.number(0) < 0) call.expected(0, "a number from 0");
    return Value::real(std::sqrt(call.number(0)));
}

Value logarithm(Call& call) {
    if (!(call.number(0) > 0)) call.expected(0, "a number above 0");
    return Value::real(std::log(call.number(0)));
}

Value power(Call& call) {
    double result = std::pow(call.number(0), call.number(1));
    bool whole = allIntegers(call) && call.integer(1) >= 0;
    return whole ? narrowed(result) : Value::real(result);
}

Value arcTangent(Call& call) {
    return Value::real(call.count() > 1 ? std::atan2(call.number(0), call.number(1))
                                        : std::atan(call.number(0)));
}

Value fix(Call& call) { return narrowed(std::trunc(call.number(0))); }
Value roundToNearest(Call& call) { return narrowed(std::round(call.number(0))); }
Value toReal(Call& call) { return Value::real(call.number(0)); }

template <class Operation>
Value foldBits(Call& call) {
    int32_t result = call.integer(0);
    for (size_t i = 1; i < call.count(); ++i) result = Operation()(result, call.integer(i));
    return Value::integer(result);
}

// (lsh number bits): to the left, or to the right where `bits` is negative; zeros come in.
Value shift(Call& call) {
    auto number = uint32_t(call.integer(0));
    int32_t bits = call.integer(1);
    if (bits <= -32 || bits >= 32) return Value::integer(0);
    return Value::integer(int32_t(bits >= 0 ? number << bits : number >> -bits));
}

Value complement(Call& call) { return Value::integer(~call.integer(0)); }

Value greatestCommonDivisor(Call& call) {
    return narrowed(double(std::gcd(int64_t(call.integer(0)), int64_t(call.integer(1)))));
}

Value isZero(Call& call) { return Value::truth(call.number(0) == 0); }
Value isNegative(Call& call) { return Value::truth(call.number(0) < 0); }
Value isPositive(Call& call) { return Value::truth(call.number(0) > 0); }
Value isEven(Call& call) { return Value::truth(call.integer(0) % 2 == 0); }
Value isOdd(Call& call) { return Value::truth(call.integer(0) % 2 != 0); }

constexpr Definition FUNCTIONS[] = {
    {u"+", addNumbers, 0, -1},
    {u"-", subtractNumbers, 1, -1},
    {u"*", multiplyNumbers, 0, -1},
    {u"/", divideNumbers, 1, -1},
    {u"rem", remainderOfNumbers, 2, -1},
    {u"1+", increment, 1, 1},
    {u"1-", decrement, 1, 1},
    {u"=", compareEqual, 1, -1},
    {u"/=", compareUnequal, 1, -1},
    {u"<", compareLess, 1, -1},
    {u">", compareGreater, 1, -1},
    {u"<=", compareLessOrEqual, 1, -1},
    {u">=", compareGreaterOrEqual, 1, -1},
    {u"abs", absolute, 1, 1},
    {u"min", extreme<std::less<>>, 1, -1},
    {u"max", extreme<std::greater<>>, 1, -1},
    {u"sqrt", squareRoot, 1, 1},
    {u"exp", ofReal<std::exp>, 1, 1},
    {u"expt", power, 2, 2},
    {u"log", logarithm, 1, 1},
    {u"sin", ofReal<std::sin>, 1, 1},
    {u"cos", ofReal<std::cos>, 1, 1},
    {u"tan", ofReal<std::tan>, 1, 1},
    {u"atan", arcTangent, 1, 2},
    {u"fix", fix, 1, 1},
    {u"round", roundToNearest, 1, 1},
    {u"float", toReal, 1, 1},
    {u"logand", foldBits<std::bit_and<>>, 1, -1},
    {u"logior", foldBits<std::bit_or<>>, 1, -1},
    {u"logxor", foldBits<std::bit_xor<>>, 1, -1},
    {u"lsh", shift, 2, 2},
    {u"~", complement, 1, 1},
    {u"gcd", greatestCommonDivisor, 2, 2},
    {u"zerop", isZero, 1, 1},
    {u"minusp", isNegative, 1, 1},
    {u"plusp", isPositive, 1, 1},
    {u"evenp", isEven, 1, 1},
    {u"oddp", isOdd, 1, 1},
};

}  // namespace

void defineNumberFunctions(Interpreter& lisp) {
    defineAll(lisp, FUNCTIONS);
    lisp.setSymbol(u"pi", Value::real(std::numbers::pi));
}

}  // namespace lisp
