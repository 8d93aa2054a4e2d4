// Scripted sessions: which forms are to be evaluated in which dialog. Portable.
#pragma once

#include <list>
#include <memory>
#include <string>

#include "host/lisp/Interpreter.h"

// The forms for one run of a dialog.
class Session {
  public:
    Session(lisp::Interpreter& lisp, std::wstring dialog, lisp::Value forms)
        : m_dialog(std::move(dialog)), m_rest(lisp, forms), m_taken(lisp) {}

    const std::wstring& dialog() const { return m_dialog; }
    // No form is left to take.
    bool isOver() const { return !m_rest.get().isCons(); }
    // Takes the next form. It is kept alive until the next one is taken.
    lisp::Value takeForm() {
        m_taken = m_rest.get();
        m_rest = m_taken.get().cdr();
        ++m_step;
        return m_taken.get().car();
    }
    // Gives the form that was taken last back, to be taken once more.
    void putBack() {
        m_rest = m_taken.get();
        --m_step;
    }
    // The number of the form that was taken last, from 1.
    int step() const { return m_step; }
    // The form that would be taken next.
    lisp::Value nextForm() const { return m_rest.get().car(); }

  private:
    std::wstring m_dialog;
    lisp::Root m_rest;
    lisp::Root m_taken;
    int m_step = 0;
};

// The sessions that wait for their dialogs, oldest first.
class SessionQueue {
  public:
    void add(std::unique_ptr<Session> session) { m_waiting.push_back(std::move(session)); }

    // Takes the oldest session for which `isFor(name)` holds; null where there is none.
    template <class Predicate>
    std::unique_ptr<Session> take(Predicate isFor) {
        for (auto at = m_waiting.begin(); at != m_waiting.end(); ++at) {
            if (!isFor((*at)->dialog())) continue;
            std::unique_ptr<Session> found = std::move(*at);
            m_waiting.erase(at);
            return found;
        }
        return nullptr;
    }

    const std::list<std::unique_ptr<Session>>& waiting() const { return m_waiting; }

  private:
    std::list<std::unique_ptr<Session>> m_waiting;
};
