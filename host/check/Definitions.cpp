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
    if (!call) {
        if (name.word == m_program.newDialog) m_opensOthers = true;
        return;
    }
    if (name.word == m_program.newDialog && call->items.size() > 1) {
        if (call->items[1].isString())
            m_openings.push_back({&call->items[1], &file()});
        else
            m_opensOthers = true;
    }
    const bool isTouching = !worksDialog(word) && !isOneOf(FILLING, word);
    if (isTouching && call->items.size() > 1 && call->items[1].kind == Form::Kind::integer)
        m_touchedIds.insert(call->items[1].number);
}

// (set 'name value) sets a variable that is known, any other call any variable.
void Definitions::noteSet(const Form* target) {
    const bool isQuoted = target && target->kind == Form::Kind::quote && !target->items.empty();
    if (isQuoted && target->items[0].isSymbol())
        target->items[0].word->isSet = true;
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
    word->isParameter = word->isParameter || isParameter;
}

void Definitions::onString(const Form& string, const Form* call, size_t argument) {
    const std::u16string text = lisp::upperCase(string.text);
    const Word* const function = call ? call->head() : nullptr;
    const bool isSession = function && function->name == u"UI_SESSION";
    if (!isSession) m_mentioned.insert(text);
    if (!function || (!worksDialog(*function) && !(argument == 0 && isOneOf(FILLING, *function))))
        m_touched.insert(text);
    if (function && function->name == u"STRCAT" && argument == 0 && text.size() > 1)
        m_beginnings.insert(text);
}

void Definitions::onDataSymbol(const Form& symbol) { symbol.word->isValue = true; }
void Definitions::onVariable(const Form& symbol) { symbol.word->isValue = true; }

void Definitions::onLoad(const Form&, bool isFound) {
    if (!isFound) m_program.hasForeignCode = true;
}

}  // namespace check
