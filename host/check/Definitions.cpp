#include "host/check/Definitions.h"

#include <algorithm>
#include <span>

#include "host/lisp/Text.h"

namespace check {

namespace {

// The functions of tiles that neither act on what a person does nor read it.
constexpr std::u16string_view FILLING[] = {u"WEX_SET_TILE",    u"WEX_MODE_TILE",   u"WEX_START_LIST",
                                           u"WEX_SETRESIZING", u"WEX_MOVECONTROL", u"WEX_LISTCTRL_SETCOLUMNS",
                                           u"WEX_TAB_ADD"};

bool isOneOf(std::span<const std::u16string_view> names, const Word& word) {
    return std::find(names.begin(), names.end(), word.name) != names.end();
}

bool worksDialog(const Word& word) { return word.name.starts_with(u"UI_"); }

}  // namespace

void Definitions::collect(const std::vector<ProgramFile*>& files) {
    constexpr int MOST_ROUNDS = 5;
    for (int round = 0; round < MOST_ROUNDS; ++round) {
        m_isChanged = false;
        m_openings.clear();
        m_opensOthers = false;
        walkProgram(files);
        if (!m_isChanged) return;
    }
}

bool Definitions::mentions(std::u16string_view text) const {
    return m_mentioned.contains(lisp::upperCase(text));
}

bool Definitions::touches(std::u16string_view key) const {
    if (m_touched.contains(key)) return true;
    return std::any_of(m_beginnings.begin(), m_beginnings.end(),
                       [&](const std::u16string& beginning) { return key.starts_with(beginning); });
}

void Definitions::onCall(const Form& name, const Form* call, std::optional<size_t>, Flow&) {
    Word& word = *name.word;
    word.isCalled = true;
    if (word.name == u"HOST_LOAD_PLUGIN") m_program.hasForeignCode = true;
    if (word.name == u"SET") noteSet(call && call->items.size() > 1 ? &call->items[1] : nullptr);
    if (!call) return;
    const bool isTouching = !worksDialog(word) && !isOneOf(FILLING, word);
    if (isTouching && call->items.size() > 1 && call->items[1].kind == Form::Kind::integer)
        m_touchedIds.insert(call->items[1].number);
}

void Definitions::onLiteral(const Form& name, const Form& literal, size_t, const Argument& argument) {
    const bool isSession = name.word->name == u"UI_SESSION";
    if (argument.role == Role::dialog && literal.isString() && !isSession)
        m_openings.push_back({&literal, &file()});
}

void Definitions::onComputed(const Form&, const Form&, size_t, const Argument& argument) {
    if (argument.role == Role::dialog) m_opensOthers = true;
}

void Definitions::onParameter(const Form&, size_t, Definition& definition, size_t parameter,
                              const Argument& argument, const Flow& flow) {
    const bool isHandedOn =
        argument.role == Role::dialog ||
        ((argument.role == Role::tile || argument.role == Role::action) && flow.isAtBegin());
    if (!isHandedOn) return;
    std::vector<Argument>& arguments = definition.arguments;
    if (arguments.size() <= parameter) arguments.resize(parameter + 1);
    Argument& known = arguments[parameter];
    if (known.role == Role::any) {
        known = argument;
        m_isChanged = true;
    } else if (known.kinds == ANY_KIND && argument.kinds != ANY_KIND && known.role == argument.role) {
        known.kinds = argument.kinds;
        m_isChanged = true;
    }
}

// (set 'name value) sets a variable that is known, any other call any variable.
void Definitions::noteSet(const Form* target) {
    const bool isQuoted = target && target->kind == Form::Kind::quote && !target->items.empty();
    if (isQuoted && target->items[0].isSymbol())
        onSet(target->items[0].word, false);
    else
        m_program.hasForeignCode = true;
}

Flow Definitions::onDefinition(const Form&, Word* word, size_t count) {
    std::vector<size_t>& counts = m_program.define(word).parameterCounts;
    if (std::find(counts.begin(), counts.end(), count) == counts.end()) counts.push_back(count);
    return Flow(DialogSet::any());
}

void Definitions::onSet(Word* word, bool isParameter) {
    word->isSet = true;
    word->isGiven = word->isGiven || !isParameter;
}

void Definitions::onString(const Form& string, const Form* call, size_t argument) {
    // No key and no dialog's name is longer.
    constexpr size_t LONGEST_NAME = 200;
    if (string.text().size() > LONGEST_NAME || !m_seen.insert(&string).second) return;
    const std::u16string text = lisp::upperCase(string.text());
    const Word* const function = call ? call->head() : nullptr;
    const bool isSession = function && function->name == u"UI_SESSION";
    if (!isSession) m_mentioned.insert(text);
    if (!function || (!worksDialog(*function) && !(argument == 0 && isOneOf(FILLING, *function))))
        m_touched.insert(text);
    if (function && function->name == u"STRCAT" && argument == 0 && text.size() > 1)
        m_beginnings.insert(text);
}

void Definitions::onDataSymbol(const Form& symbol) { symbol.word->isValue = true; }
void Definitions::onVariable(const Form& symbol) {
    // A parameter of that name is something else.
    if (!bindingOf(symbol)) symbol.word->isValue = true;
}

void Definitions::onLoad(const Form&, bool isFound) {
    if (!isFound) m_program.hasForeignCode = true;
}

}  // namespace check
