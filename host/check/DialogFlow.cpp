#include "host/check/DialogFlow.h"

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
        m_atCalls.clear();
        walkProgram(files);
        if (!m_isChanged) return;
    }
    m_atCalls.clear();
}

void DialogFlow::onCall(const Form& name, const Form* call, std::optional<size_t>, Flow& flow) {
    Word* const word = name.word;
    if (Definition* definition = word->definition) {
        m_isChanged = definition->atCall.add(flow.current()) || m_isChanged;
        const Flow effect = definition->effect;
        flow.call(effect);
        return;
    }
    if (word == m_program.newDialog) {
        const bool isNamed = call && call->items.size() > 1 && call->items[1].isString();
        const Dialog* dialog = isNamed ? m_program.knowledge.dialog(call->items[1].text) : nullptr;
        flow.open(dialog ? DialogSet(dialog) : DialogSet::any());
    }
    if (word->function && word->function->isAboutDialogs()) m_atCalls[&name].add(flow.current());
    if (word == m_program.startDialog) flow.start();
}

Flow DialogFlow::onDefinition(const Form&, Word* word, size_t) { return Flow(word->definition->atCall); }

void DialogFlow::onDefinitionEnd(Word* word, const Flow& flow) {
    Definition& definition = *word->definition;
    if (definition.effect.hasSameEffect(flow)) return;
    definition.effect = flow;
    m_isChanged = true;
}

}  // namespace check
