#include "host/services/Actions.h"

#include <algorithm>
#include <array>

#include "host/services/Texts.h"
#include "src/platform/base/EventText.h"
#include "src/platform/base/Text.h"

namespace {

// Of dialogs that were never started; the oldest go.
constexpr size_t MOST_NOTES = 5000;
// More of an action's text isn't shown.
constexpr size_t MOST_SHOWN = 200;

struct Binding {
    std::wstring_view function;
    std::wstring_view key;  // empty: the first argument is the tile
    std::wstring_view subject;
};

constexpr std::array BINDINGS = {
    Binding{L"wex_action_tile", L"", L""},
    Binding{L"wex_setaction_oninit", L"OnInit", L"on-init "},
    Binding{L"wex_setaction_onsize", L"OnSize", L"on-size "},
};

const Binding* bindingOf(std::wstring_view function) {
    const auto found = std::find_if(BINDINGS.begin(), BINDINGS.end(),
                                    [&](const Binding& binding) { return binding.function == function; });
    return found == BINDINGS.end() ? nullptr : &*found;
}

std::wstring textOf(const HostValue* node) {
    return node && node->type == HV_STRING ? node->value.stringValue : L"";
}

// As a key stands in the name of its function.
std::wstring keyOf(const HostValue* tile) {
    const std::wstring key = textOf(tile);
    if (!key.empty()) return key;
    return std::to_wstring(tile && tile->type == HV_SHORT ? tile->value.shortValue : -1);
}

// As the text comes back from a file.
std::wstring withPlainLineEnds(const std::wstring& text) {
    std::wstring plain;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != L'\r') plain += text[i];
        if (text[i] == L'\r' && text.substr(i, 2) != L"\r\n") plain += L'\n';
    }
    return plain;
}

std::wstring onOneLine(std::wstring text) {
    const auto isControl = [](wchar_t c) { return c < L' '; };
    std::replace_if(text.begin(), text.end(), isControl, L' ');
    return text.size() > MOST_SHOWN ? text.substr(0, MOST_SHOWN) + L"..." : text;
}

}  // namespace

bool Actions::isBinding(std::wstring_view function) { return bindingOf(function); }

void Actions::note(std::wstring_view function, const HostValue* arguments, lisp::SourceLine place) {
    const Binding* binding = bindingOf(function);
    if (!binding || !arguments) return;
    Note note{std::wstring(binding->key), std::wstring(binding->subject), {}, std::move(place)};
    if (note.key.empty()) {
        note.key = keyOf(arguments);
        note.subject = L"tile \"" + note.key + L"\", ";
        arguments = arguments->next;
    }
    note.text = withPlainLineEnds(textOf(arguments));
    if (m_notes.size() == MOST_NOTES) m_notes.erase(m_notes.begin());
    m_notes.push_back(std::move(note));
}

// The newest note whose definition stands there. One key may be the end of another: the longest fits.
std::vector<Actions::Note>::iterator Actions::noteOf(std::wstring_view file, size_t at,
                                                     std::wstring_view suffix) {
    auto best = m_notes.end();
    for (auto note = m_notes.begin(); note != m_notes.end(); ++note) {
        const bool fits =
            suffix.ends_with(note->key) && file.substr(at).starts_with(actionDefinition(suffix, note->text));
        if (fits && (best == m_notes.end() || note->key.size() >= best->key.size())) best = note;
    }
    return best;
}

// From the last to the first, since notes of actions that came to nothing are older than those of the file.
std::vector<Actions::Piece> Actions::piecesOf(std::wstring_view file, const std::u16string& name) {
    std::vector<Piece> pieces;
    size_t end = file.size();
    const auto addRest = [&](size_t from) {
        if (from < end) pieces.push_back({file.substr(from, end - from), {name, 0}, {}, {}, {}});
    };
    for (size_t at = lastDefinition(file, end); at != file.npos; at = lastDefinition(file, at)) {
        const auto suffix = definitionSuffix(file, at);
        const auto note = suffix ? noteOf(file, at, *suffix) : m_notes.end();
        if (note == m_notes.end()) continue;
        const size_t size = actionDefinition(*suffix, note->text).size();
        if (at + size > end) continue;
        addRest(at + size);
        const std::wstring dialog(suffix->substr(0, suffix->size() - note->key.size()));
        const std::wstring bound = wideText(note->place.text());
        pieces.push_back({file.substr(at, size), note->place, actionFunctionName(*suffix), dialog,
                          note->subject + L"action" + (bound.empty() ? L"" : L" bound at " + bound) + L": " +
                              onOneLine(note->text)});
        end = at;
        m_notes.erase(note);
    }
    addRest(0);
    std::reverse(pieces.begin(), pieces.end());
    return pieces;
}

lisp::Value Actions::read(const Piece& piece) {
    const lisp::Value forms = m_lisp.readAll(lispText(piece.text), piece.place);
    if (piece.function.empty()) return forms;
    // A name that falls apart leaves the function without a body, or another one defined.
    const lisp::Value rest = forms.car().cdr();
    if (rest.car() != m_lisp.symbol(lispText(piece.function)) || !rest.cdr().car().isNil())
        throw lisp::Error(u"no name in Lisp can hold that key");
    return forms;
}

void Actions::evaluate(const std::vector<Piece>& pieces) {
    lisp::ListBuilder forms(m_lisp);
    std::wstring faults;
    for (const Piece& piece : pieces) {
        try {
            for (const lisp::Value form : lisp::Elements(read(piece))) forms.add(form);
        } catch (const lisp::Error& error) {
            if (!faults.empty()) faults += L"\n  ";
            const bool isAction = !piece.function.empty();
            faults +=
                isAction ? piece.description + L"\n    " + wideText(error.message()) : wideText(error.text());
        }
    }
    if (!faults.empty()) throw lisp::Error(lispText(faults));
    for (const lisp::Value form : lisp::Elements(forms.list())) m_lisp.eval(form);
}

void Actions::load(std::u16string_view path) {
    const lisp::SourceLine start = m_lisp.place();
    const std::wstring file = wideText(path);
    std::set<std::wstring>& functions = m_loaded[toLower(file)];
    std::wstring dialog = file.substr(file.find_last_of(L"\\/") + 1);
    try {
        const std::wstring text = wideText(m_lisp.fileText(path));
        const std::vector<Piece> pieces = piecesOf(text, lispText(dialog));
        for (const Piece& piece : pieces) {
            if (piece.function.empty()) continue;
            dialog = piece.dialog;
            const std::wstring name = toLower(piece.function);
            functions.insert(name);
            m_descriptions[name] = L"dialog \"" + dialog + L"\", " + piece.description;
        }
        evaluate(pieces);
    } catch (const lisp::Error& error) {
        for (const std::wstring& name : functions) {
            m_lisp.undefine(lispText(name));
            m_descriptions.erase(name);
        }
        functions.clear();
        lisp::Error told(lispText(L"dialog \"" + dialog + L"\" has lost all its actions\n  ") + error.text());
        told.locate(start.file, start.line, {});
        throw told;
    }
}

std::wstring Actions::running() const {
    const std::lock_guard lock(m_mutex);
    return m_running.empty() ? std::wstring() : m_running.back();
}

Actions::Run::Run(Actions& actions, std::wstring_view function) : m_actions(actions) {
    const auto found = actions.m_descriptions.find(toLower(function));
    m_isAction = found != actions.m_descriptions.end();
    if (!m_isAction) return;
    const std::lock_guard lock(actions.m_mutex);
    actions.m_running.push_back(found->second);
}

Actions::Run::~Run() {
    if (!m_isAction) return;
    const std::lock_guard lock(m_actions.m_mutex);
    m_actions.m_running.pop_back();
}
