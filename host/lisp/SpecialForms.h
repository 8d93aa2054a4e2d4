// The forms of the Lisp that are no calls of functions.
#pragma once

#include <cstdint>
#include <iterator>
#include <string_view>

namespace lisp {

enum class SpecialForm : uint8_t {
    none,
    quote,
    function,
    ifForm,
    cond,
    andForm,
    orForm,
    progn,
    setq,
    whileForm,
    repeat,
    foreach,
    lambda,
    defun,
    catchError
};

// Their names in capitals, in the order of the numbers from 1 on.
inline constexpr std::u16string_view SPECIAL_FORM_NAMES[] = {
    u"QUOTE", u"FUNCTION", u"IF",     u"COND",    u"AND",    u"OR",    u"PROGN",
    u"SETQ",  u"WHILE",    u"REPEAT", u"FOREACH", u"LAMBDA", u"DEFUN", u"CATCH-ERROR",
};
static_assert(std::size(SPECIAL_FORM_NAMES) == static_cast<size_t>(SpecialForm::catchError));

}  // namespace lisp
