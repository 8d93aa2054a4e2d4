// What a person did in dialogs, as the text of a program with sessions. Portable.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/drive/KeyNames.h"

// A text as Lisp reads it, in quotes.
std::wstring lispString(std::wstring_view text);

// The form that presses the key; empty for one that has no name.
std::wstring keyForm(const KeyStroke& stroke);

struct RecordedStep {
    enum class Kind {
        other,
        focus,    // moves the focus to `tile`, and does nothing else
        open,     // opens the list of `tile`
        click,    // also moves the focus to `tile`
        type,     // also moves the focus to `tile`
        pick,     // also opens the list of `tile`
        chars,    // characters, of which more may follow
        menuKey,  // moves within a menu
    };

    Kind kind = Kind::other;
    std::wstring tile;  // as Lisp names it
    std::wstring form;  // empty: nothing is to be done
    // What is to be done before it, as answering the boxes that it brings up.
    std::vector<std::wstring> before;
};

class Recording {
  public:
    // `head` stands in front, as lines of comment.
    explicit Recording(std::wstring head) : m_head(std::move(head)) {}

    struct Place {
        size_t session, step;
        bool operator==(const Place&) const = default;
    };

    // Begins a session for the dialog of that name, and gives its number.
    size_t begin(std::wstring_view dialog);
    Place add(size_t session, RecordedStep step);
    RecordedStep& at(Place place) { return m_sessions[place.session].steps[place.step]; }
    // The step that was added last, of all sessions; null where none was.
    RecordedStep* last() { return m_last ? &at(*m_last) : nullptr; }
    bool isLast(Place place) const { return m_last == place; }
    // Has a form done before the step that was added last, or before all where none was.
    void addBeforeLast(std::wstring form);

    // How many steps were added, in all sessions.
    size_t stepCount() const { return m_count; }
    // Takes back the last steps, as far as they only moved within a menu.
    void dropMenuKeys();

    // Of two steps that do the same the first is left out: a click that leads into a box, before what is
    // typed there.
    std::wstring text() const;

  private:
    struct Session {
        std::wstring dialog;
        std::deque<RecordedStep> steps;
    };
    static std::vector<std::wstring> formsOf(const Session& session);

    std::wstring m_head;
    std::vector<std::wstring> m_beforeAll;
    std::deque<Session> m_sessions;
    std::optional<Place> m_last;
    size_t m_count = 0;
};
