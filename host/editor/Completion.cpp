#include "host/editor/Completion.h"

#include <algorithm>
#include <set>

#include "host/lisp/SpecialForms.h"
#include "host/lisp/Text.h"
#include "host/lisp/Tokens.h"

namespace editor {

namespace {

using check::Form;

// An escape in a key isn't part of it.
bool isWordLetter(char16_t c) { return !lisp::endsWord(c) && c != u'\\'; }

void sortItems(std::vector<CompletionItem>& items) {
    std::sort(items.begin(), items.end(),
              [](const CompletionItem& a, const CompletionItem& b) { return a.text < b.text; });
}

void addFunctions(Completion& completion, const check::CheckedProgram& program,
                  const check::Knowledge& knowledge) {
    std::set<std::u16string> told;
    const auto add = [&](std::u16string_view name, const std::u16string& detail, CompletionKind kind) {
        std::u16string text = lisp::lowerCase(name);
        if (told.insert(text).second) completion.items.push_back({std::move(text), detail, kind});
    };
    for (const std::u16string& name : program.definedNames()) add(name, u"", CompletionKind::function);
    for (const auto& [name, function] : knowledge.functions())
        add(name, function.usage.empty() ? u"" : u"(" + function.usage + u")", CompletionKind::function);
    for (const std::u16string_view keyword : lisp::SPECIAL_FORM_NAMES)
        add(keyword, u"", CompletionKind::keyword);
}

void addDialogs(Completion& completion, const check::Knowledge& knowledge) {
    for (const auto& [name, dialog] : knowledge.dialogs())
        completion.items.push_back({dialog.name, u"", CompletionKind::dialog});
}

void addTiles(Completion& completion, const check::CheckedProgram& program, const Form& call) {
    const check::DialogSet at = program.dialogAt(call);
    const bool isSure = !at.isAny() && !at.dialogs().empty();
    std::set<std::u16string> told;
    std::vector<const check::Dialog*> dialogs(at.dialogs().begin(), at.dialogs().end());
    if (!isSure) dialogs = program.openedDialogs();
    for (const check::Dialog* dialog : dialogs)
        for (const check::DialogTile& tile : dialog->tiles)
            if (!tile.key.empty() && told.insert(tile.key).second)
                completion.items.push_back(
                    {tile.key, tile.kind + u" of " + dialog->name, CompletionKind::tile});
}

}  // namespace

Completion completionAt(const check::CheckedProgram& program, const check::Knowledge& knowledge,
                        std::u16string_view text, uint32_t offset) {
    Completion completion;
    completion.begin = completion.end = offset;
    while (completion.begin > 0 && isWordLetter(text[completion.begin - 1])) --completion.begin;
    while (completion.end < text.size() && isWordLetter(text[completion.end])) ++completion.end;
    const std::vector<const Form*> around = program.formsAround(offset);
    const bool isInString = !around.empty() && around.back()->isString();
    if (!isInString) {
        addFunctions(completion, program, knowledge);
    } else if (around.size() > 1 && around[around.size() - 2]->head()) {
        const Form& call = *around[around.size() - 2];
        size_t index = 0;
        while (index < call.items.size() && &call.items[index] != around.back()) ++index;
        if (index == 0 || index >= call.items.size()) return completion;
        const check::Argument argument = check::argumentOf(*call.head(), index - 1);
        if (argument.role == check::Role::dialog) addDialogs(completion, knowledge);
        if (argument.role == check::Role::tile) addTiles(completion, program, call);
    }
    sortItems(completion.items);
    return completion;
}

}  // namespace editor
