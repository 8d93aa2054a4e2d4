// An interpreter that a test talks to in UTF-8, as a person does at a prompt.
#pragma once

#include <string>
#include <string_view>

#include "host/lisp/Interpreter.h"
#include "host/lisp/Text.h"

struct Session {
    explicit Session(lisp::Limits limits = {}) : lisp(limits) {
        lisp.setOutput([this](std::u16string_view text) { output += lisp::toUtf8(text); });
    }

    // What a prompt prints for the value of the last form; "error: …" after an error.
    std::string run(std::string_view program) {
        try {
            lisp::Value value = lisp.evalText(lisp::fromUtf8(program), u"example");
            return value.isNone() ? "" : lisp::toUtf8(lisp.print(value));
        } catch (const lisp::Error& error) {
            return std::string("error: ") + error.what();
        }
    }

    std::string output;
    lisp::Interpreter lisp;
};
