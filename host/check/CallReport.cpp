#include "host/check/CallReport.h"

#include <algorithm>
#include <span>

#include "host/lisp/NearestName.h"
#include "host/lisp/Text.h"

namespace check {

namespace {

std::u16string small(const Word& word) { return lisp::lowerCase(word.name); }

std::u16string counted(size_t count) {
    return lisp::decimal(static_cast<int64_t>(count)) + (count == 1 ? u" argument" : u" arguments");
}

std::u16string orNearest(std::u16string_view wanted, const std::vector<std::u16string>& names) {
    const std::optional<std::u16string> nearest = lisp::nearestName(wanted, names);
    return nearest ? u"; did you mean \"" + *nearest + u"\"?" : std::u16string();
}

bool isNumber(const Form& form) { return form.kind == Form::Kind::integer || form.kind == Form::Kind::real; }

// A key that names the dialog itself, for its title.
bool namesTitle(const Word& function, const Dialog& dialog, std::u16string_view key) {
    const std::u16string wanted = lisp::upperCase(key);
    return function.name == u"WEX_SET_TILE" &&
           (wanted == u"MAIN_TITLE" || wanted == lisp::upperCase(dialog.name));
}

bool isKnownVariable(const Word& word) {
    return word.isSet || word.definition || word.function || word.name.starts_with(u"$") ||
           word.special != SpecialForm::none || word.name == u"T" || word.name == u"NIL" ||
           word.name == u"PI";
}

std::u16string withArticle(const std::u16string& kind) {
    const bool isVowel =
        !kind.empty() && std::u16string_view(u"aeiou").find(kind[0]) != std::u16string_view::npos;
    return (isVowel ? u"an " : u"a ") + kind;
}

std::u16string nameOfTile(const Form& form) {
    return form.isString() ? u"\"" + form.text() + u"\"" : lisp::decimal(static_cast<int64_t>(form.number));
}

}  // namespace

CallReport::CallReport(Program& program, const std::unordered_map<const Form*, DialogSet>& atCalls, Tell tell,
                       IsNeverOpened isNeverOpened)
    : CodeWalk(program),
      m_atCalls(atCalls),
      m_tell(std::move(tell)),
      m_isNeverOpened(std::move(isNeverOpened)) {}

void CallReport::onMalformed(const Form& form, const std::u16string& why) { tell(form, why); }

void CallReport::onAction(const Form&, const ReadText& text) {
    for (const Fault& fault : text.faults) m_tell(file(), fault.begin, fault.end, fault.text);
}

void CallReport::onCall(const Form& name, const Form* call, std::optional<size_t> count, Flow&) {
    const Word& word = *name.word;
    if (!word.function && !word.definition) {
        if (!word.isSet && word.special == SpecialForm::none) tellUnknown(name);
        return;
    }
    // A list that the reader had to end, or one with a dot, may lack some.
    if (count && (!call || (call->isClosed && !call->isDotted))) checkCount(name, *count);
}

void CallReport::tellUnknown(const Form& name) {
    // Code that can't be seen may define it.
    if (m_program.hasForeignCode) return;
    const std::u16string meant = nearest(*name.word, callableNames());
    tell(name, u"there is no function " + small(*name.word) +
                   (meant.empty() ? u"" : u"; did you mean " + meant + u"?"));
}

std::u16string CallReport::nearest(const Word& word, const std::vector<std::u16string>& names) {
    // A text in which hardly a name is known is no program that somebody mistyped.
    constexpr size_t MOST_SEARCHES = 200;
    if (const auto at = m_nearest.find(&word); at != m_nearest.end()) return at->second;
    if (m_nearest.size() >= MOST_SEARCHES) return {};
    std::u16string found = lisp::lowerCase(lisp::nearestName(word.name, names).value_or(u""));
    m_nearest.emplace(&word, found);
    return found;
}

void CallReport::checkCount(const Form& name, size_t count) {
    const Word& word = *name.word;
    // A variable of that name may hide the function.
    if (word.isGiven || bindingOf(name)) return;
    if (word.definition) {
        const std::vector<size_t>& counts = word.definition->parameterCounts;
        if (std::find(counts.begin(), counts.end(), count) != counts.end()) return;
        // One that defines a function of the host anew may mean either.
        if (word.function || counts.size() != 1) return;
        tell(name, small(word) + u" takes " + counted(counts[0]) + u", got " +
                       lisp::decimal(static_cast<int64_t>(count)));
    }
    if (word.definition) return;
    const Function& function = *word.function;
    const bool isTooFew = count < static_cast<size_t>(function.minimum);
    const bool isTooMany = function.maximum >= 0 && count > static_cast<size_t>(function.maximum);
    if (!isTooFew && !isTooMany) return;
    const bool isExact = function.minimum == function.maximum;
    const size_t wanted = static_cast<size_t>(isTooFew ? function.minimum : function.maximum);
    const std::u16string usage = function.usage.empty() ? u"" : u": (" + function.usage + u")";
    tell(name, small(word) + u" takes " +
                   (isExact    ? u""
                    : isTooFew ? u"at least "
                               : u"at most ") +
                   counted(wanted) + u", got " + lisp::decimal(static_cast<int64_t>(count)) + usage);
}

void CallReport::onLiteral(const Form& name, const Form& literal, size_t index, const Argument& argument) {
    if (argument.role == Role::tile)
        checkTile(name, literal, argument.kinds);
    else if (argument.role == Role::dialog)
        checkDialog(name, literal);
    else
        checkValue(name, literal, index, argument.role);
}

void CallReport::checkValue(const Form& name, const Form& form, size_t index, Role role) {
    const auto expected = [&](const char16_t* what) {
        tell(form, small(*name.word) + u" takes " + what + u" as argument " +
                       lisp::decimal(static_cast<int64_t>(index) + 1));
    };
    const bool isInteger = role == Role::integer || role == Role::mode;
    if (isInteger && (form.isString() || form.kind == Form::Kind::real)) return expected(u"an integer");
    if ((role == Role::text || role == Role::action) && isNumber(form)) return expected(u"a string");
    if (role != Role::mode || form.kind != Form::Kind::integer) return;
    const bool exists = form.number >= -1 && form.number <= 6 && form.number != 4;
    if (!exists)
        tell(form, u"there is no mode " + lisp::decimal(static_cast<int64_t>(form.number)) +
                       u": the modes are 0, 1, 2, 3, 5, 6 and -1");
}

// A key without its quotation marks.
void CallReport::onComputed(const Form&, const Form& form, size_t, const Argument& argument) {
    const bool isName = argument.role == Role::tile || argument.role == Role::dialog;
    if (!isName || !form.isSymbol() || isKnownVariable(*form.word) || m_program.hasForeignCode) return;
    tell(form,
         u"nothing sets the variable " + small(*form.word) + u"; a name stands between quotation marks");
}

void CallReport::checkDialog(const Form& function, const Form& form) {
    if (!form.isString() || m_program.knowledge.dialogs().empty()) return;
    if (m_program.knowledge.dialog(form.text())) {
        const bool isSession = function.word->name == u"UI_SESSION";
        if (isSession && m_isNeverOpened(form.text()))
            tell(form, u"the program never opens the dialog \"" + form.text() + u"\" of this session");
        return;
    }
    std::vector<std::u16string> names;
    for (const auto& [name, dialog] : m_program.knowledge.dialogs()) names.push_back(dialog.name);
    std::sort(names.begin(), names.end());
    tell(form, u"there is no dialog \"" + form.text() + u"\"" + orNearest(form.text(), names));
}

void CallReport::checkTile(const Form& name, const Form& whole, TileKinds kinds) {
    // In sessions '(100 102) is a window within the tile 100.
    const bool isPath = whole.kind == Form::Kind::quote && whole.items.size() == 1 && whole.items[0].isList();
    const Form& form = isPath && !whole.items[0].items.empty() ? whole.items[0].items[0] : whole;
    if (isPath) kinds = ANY_KIND;
    const bool isKey = form.isString();
    if (!isKey && form.kind != Form::Kind::integer) return;
    const auto at = m_atCalls.find(&name);
    if (at == m_atCalls.end() || at->second.isAny() || at->second.dialogs().empty()) return;
    const std::span<const Dialog* const> dialogs = at->second.dialogs();
    const Dialog& dialog = *dialogs[0];
    const std::u16string which =
        dialogs.size() == 1 ? dialog.name : u"none of the dialogs that it may be called for";
    std::u16string_view misfit;
    for (const Dialog* one : dialogs) {
        if (isKey && namesTitle(*name.word, *one, form.text())) return;
        if (!isKey && !one->hasTemplate) return;
        const DialogTile* tile = isKey ? one->tileOfKey(form.text()) : one->tileOfId(form.number);
        if (!tile) continue;
        const TileKinds kind = kindOfWords(tile->kind);
        if (kinds == ANY_KIND || kind == ANY_KIND || (kind & kinds)) return;
        misfit = tile->kind;
    }
    if (!misfit.empty())
        return tell(form, small(*name.word) + u" works on " + withArticle(wordsOfKinds(kinds)) + u", and " +
                              nameOfTile(form) + u" of " + dialog.name + u" is " +
                              withArticle(std::u16string(misfit)));
    std::vector<std::u16string> keys;
    for (const Dialog* one : dialogs)
        for (const DialogTile& tile : one->tiles)
            if (!tile.key.empty()) keys.push_back(tile.key);
    const std::u16string verb = dialogs.size() == 1 ? u" has no tile " : u" has a tile ";
    tell(form, which + verb + nameOfTile(form) + (isKey ? orNearest(form.text(), keys) : u""));
}

// In this Lisp a variable that was never set is nil, and programs ask for that. But one that nothing sets and
// whose name is nearly that of one that is set is a slip.
void CallReport::onVariable(const Form& symbol) {
    const Word& word = *symbol.word;
    if (isKnownVariable(word) || m_program.hasForeignCode || word.name.size() < 3) return;
    const std::u16string meant = nearest(word, variableNames());
    if (!meant.empty())
        tell(symbol, u"nothing sets the variable " + small(word) + u"; did you mean " + meant + u"?");
}

const std::vector<std::u16string>& CallReport::callableNames() {
    if (!m_callable.empty()) return m_callable;
    for (const auto& [name, word] : m_program.words)
        if (word->function || word->definition || word->special != SpecialForm::none)
            m_callable.push_back(word->name);
    std::sort(m_callable.begin(), m_callable.end());
    return m_callable;
}

const std::vector<std::u16string>& CallReport::variableNames() {
    if (!m_variables.empty()) return m_variables;
    for (const auto& [name, word] : m_program.words)
        if (word->isSet) m_variables.push_back(word->name);
    std::sort(m_variables.begin(), m_variables.end());
    return m_variables;
}

}  // namespace check
