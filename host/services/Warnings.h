// Warnings to the author of a program: what a function couldn't do, though it said nothing. Portable.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "host/lisp/Interpreter.h"

// What --warn asks for.
enum class WarningMode { off, on, error };

class Warnings {
  public:
    explicit Warnings(const lisp::Interpreter& lisp) : m_lisp(lisp) {}

    // A kind of warning of one function in one line.
    struct Site {
        lisp::Place place;
        std::wstring_view function;  // empty for none
        int32_t kind;
    };

    void setMode(WarningMode mode) { m_mode = mode; }
    // A program that means to do wrong says so. True: warnings are told again.
    void setHeard(bool heard) { m_heard = heard; }
    bool isHeard() const { return m_heard && m_mode != WarningMode::off; }

    // Whether a warning there would be told. One of a kind is told once for a place.
    bool isNew(const Site& site) const;
    // The line to print, `file:line: function: words`, with the nearest of the candidates to a name that was
    // wrong. Nothing for one that isn't new.
    std::optional<std::wstring> tell(const Site& site, std::wstring_view words, std::wstring_view wanted = {},
                                     std::span<const std::wstring> candidates = {});

    // The lines since the last call, oldest first. Who takes them has expected them: they are no errors.
    std::vector<std::wstring> take();
    // Whether warnings count as errors, and there were some that nobody took.
    bool haveFailed() const { return m_mode == WarningMode::error && !m_lines.empty(); }

  private:
    using Key = std::tuple<uint32_t, uint32_t, int32_t, std::wstring>;

    static Key keyOf(const Site& site);

    const lisp::Interpreter& m_lisp;
    WarningMode m_mode = WarningMode::off;
    bool m_heard = true;
    std::set<Key> m_told;
    std::vector<std::wstring> m_lines;
};
