#include "host/check/DialogFlow.h"

#include <algorithm>

namespace check {

namespace {

// What a program's functions do to each other is known after as many rounds as they call each other deep.
constexpr int MOST_ROUNDS = 12;

}  // namespace

void DialogFlow::follow(const std::vector<ProgramFile*>& files) {
    for (const auto& definition : m_program.definitions)
        if (!definition->word->isCalled || definition->word->isValue) definition->atCall = DialogSet::any();
    for (int round = 0; round < MOST_ROUNDS; ++round) {
        m_isChanged = false;
        walkProgram(files);
        if (!m_isChanged) return;
    }
    m_atCalls.clear();
}

void DialogFlow::onCall(const Form& name, const Form* call, std::optional<size_t>, Flow& flow) {
    Word* const word = name.word;
    if (Definition* definition = word->definition) {
        if (!definition->arguments.empty()) m_atCalls[&name].add(flow.current());
        if (definition->atCall.add(flow.current())) {
            definition->atCallChanged = ++m_clock;
            m_isChanged = true;
        }
        flow.call(definition->effect);
        return;
    }
    if (word == m_program.newDialog) {
        flow.open(call ? m_named : DialogSet::any());
        m_named = DialogSet::any();
    }
    if (word->function && word->function->isAboutDialogs()) m_atCalls[&name].add(flow.current());
    if (word == m_program.startDialog) flow.start();
}

void DialogFlow::onLiteral(const Form& function, const Form& literal, size_t index,
                           const Argument& argument) {
    if (argument.role != Role::dialog) return;
    const Dialog* dialog = literal.isString() ? m_program.knowledge.dialog(literal.text()) : nullptr;
    name(function, index, dialog ? DialogSet(dialog) : DialogSet::any());
}

void DialogFlow::onComputed(const Form& function, const Form&, size_t index, const Argument& argument) {
    if (argument.role == Role::dialog) name(function, index, DialogSet::any());
}

void DialogFlow::onParameter(const Form& function, size_t index, Definition& definition, size_t parameter,
                             const Argument& argument, const Flow&) {
    if (argument.role != Role::dialog) return;
    const bool isKnown = definition.word->isCalled && !definition.word->isValue;
    if (!isKnown) return name(function, index, DialogSet::any());
    name(function, index, parameter < definition.named.size() ? definition.named[parameter] : DialogSet());
}

// A name that is given to a function of the program is one that its parameter may have.
void DialogFlow::name(const Form& function, size_t index, const DialogSet& dialogs) {
    Definition* definition = function.word->definition;
    if (!definition) {
        m_named = dialogs;
        return;
    }
    if (definition->named.size() <= index) definition->named.resize(index + 1);
    if (definition->named[index].add(dialogs)) noteWideChange();
}

void DialogFlow::noteWideChange() {
    m_widelyChanged = ++m_clock;
    m_isChanged = true;
}

bool DialogFlow::knowsDefinition(const Form& form) {
    const auto at = m_walkedAt.find(&form);
    const unsigned changed = std::max(form.items[1].word->definition->atCallChanged, m_widelyChanged);
    return at != m_walkedAt.end() && at->second > changed;
}

Flow DialogFlow::onDefinition(const Form& form, Word* word, size_t) {
    m_walkedAt[&form] = ++m_clock;
    return Flow(word->definition->atCall);
}

void DialogFlow::onDefinitionEnd(Word* word, const Flow& flow) {
    Definition& definition = *word->definition;
    if (definition.effect.hasSameEffect(flow)) return;
    definition.effect = flow;
    noteWideChange();
}

}  // namespace check
