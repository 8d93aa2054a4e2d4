// The actions that programs bind to the tiles of dialogs. A plug-in hands their texts to Lisp as a file of
// functions, which is gone when one of them fails: so the host notes where each was bound. Portable.
#pragma once

#include <map>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "host/lisp/Interpreter.h"
#include "src/platform/host/HostValue.h"

class Actions {
  public:
    explicit Actions(lisp::Interpreter& lisp) : m_lisp(lisp) {}

    // Whether the Lisp function of that name binds an action.
    static bool isBinding(std::wstring_view function);
    // Notes a call of such a function: its arguments as a plug-in sees them, and where it stands.
    void note(std::wstring_view function, const HostValue* arguments, lisp::SourceLine place);

    // Loads a file of actions. All of it is read before any of it is evaluated, and each action counts as
    // written where it was bound. Where that fails, none of the file's functions is left, neither of this
    // load nor of an earlier one. Throws lisp::Error, which names the actions at fault.
    void load(std::u16string_view path);

    // The action that runs: its dialog, its tile, its text and where it was bound. Empty while none runs. May
    // be called from any thread.
    std::wstring running() const;

    // Around a plug-in's call of a Lisp function: runs the action of that name, if it is one.
    class Run {
      public:
        Run(Actions& actions, std::wstring_view function);
        ~Run();
        Run(const Run&) = delete;
        Run& operator=(const Run&) = delete;

      private:
        Actions& m_actions;
        bool m_isAction;
    };

  private:
    // A text that was bound, and the end of the name that its function will have.
    struct Note {
        std::wstring key;
        std::wstring subject;  // what it is the action of, within its dialog
        std::wstring text;
        lisp::SourceLine place;
    };
    // What stands in a file of actions: an action's definition, or text that no action was noted for.
    struct Piece {
        std::wstring_view text;
        lisp::SourceLine place;
        std::wstring function;
        std::wstring dialog;
        std::wstring description;
    };

    std::vector<Piece> piecesOf(std::wstring_view file, const std::u16string& name);
    std::vector<Note>::iterator noteOf(std::wstring_view file, size_t at, std::wstring_view suffix);
    void evaluate(const std::vector<Piece>& pieces);
    lisp::Value read(const Piece& piece);

    lisp::Interpreter& m_lisp;
    // Those that no file has brought yet.
    std::vector<Note> m_notes;
    // By name in lower case: what tells of an action; and the functions of each file.
    std::map<std::wstring, std::wstring> m_descriptions;
    std::map<std::wstring, std::set<std::wstring>> m_loaded;
    mutable std::mutex m_mutex;
    std::vector<std::wstring> m_running;
};
