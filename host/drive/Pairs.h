// An association list that grows pair by pair.
#pragma once

#include <string_view>

#include "host/lisp/Interpreter.h"

class Pairs {
  public:
    explicit Pairs(lisp::Interpreter& lisp) : m_lisp(lisp), m_pairs(lisp) {}

    void add(std::u16string_view name, lisp::Value value) {
        m_pairs.add(m_lisp.cons(m_lisp.string(name), value));
    }
    lisp::Value list() { return m_pairs.list(); }

  private:
    lisp::Interpreter& m_lisp;
    lisp::ListBuilder m_pairs;
};
