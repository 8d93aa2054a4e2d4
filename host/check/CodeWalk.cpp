#include "host/check/CodeWalk.h"

#include "host/lisp/Text.h"

namespace check {

namespace {

// Actions bind actions, in texts within texts.
constexpr int DEEPEST = 400;

// Whether evaluating the form opens a dialog and tells by its value whether that went well; `*isTurned` where
// nil means that it did.
bool testsOpening(const Form& form, const Word* newDialog, bool* isTurned) {
    if (!form.isList() || form.items.empty()) return false;
    if (form.head() == newDialog) return true;
    const std::u16string_view name = form.head() ? std::u16string_view(form.head()->name) : u"";
    const bool isNot = name == u"NOT" || name == u"NULL";
    const bool passesOn = isNot || name == u"SETQ" || name == u"AND" || name == u"PROGN";
    if (isNot) *isTurned = !*isTurned;
    return passesOn && testsOpening(form.items.back(), newDialog, isTurned);
}

// The elements of a list that stands in the program: '(a b), or (list a b).
std::vector<const Form*> elementsOf(const Form& form) {
    std::vector<const Form*> elements;
    const bool isQuoted = form.kind == Form::Kind::quote && form.items.size() == 1 && form.items[0].isList();
    const bool isMade = form.head() && form.head()->name == u"LIST";
    if (isQuoted)
        for (const Form& item : form.items[0].items) elements.push_back(&item);
    if (isMade)
        for (size_t i = 1; i < form.items.size(); ++i) elements.push_back(&form.items[i]);
    return elements;
}

// Which element of a list a function such as cadr takes.
std::optional<size_t> placeTaken(const Word* function) {
    constexpr std::u16string_view TAKERS[] = {u"CAR", u"CADR", u"CADDR", u"CADDDR"};
    for (size_t i = 0; function && i < std::size(TAKERS); ++i)
        if (function->name == TAKERS[i]) return i;
    return std::nullopt;
}

bool isLiteral(const Form& form) {
    const bool isPath = form.kind == Form::Kind::quote;
    return form.isString() || form.kind == Form::Kind::integer || form.kind == Form::Kind::real || isPath;
}

}  // namespace

void CodeWalk::walkProgram(const std::vector<ProgramFile*>& files) {
    m_walked.clear();
    Flow flow{DialogSet()};
    for (ProgramFile* file : files) walkFile(*file, flow);
}

void CodeWalk::walkFile(ProgramFile& file, Flow& flow) {
    if (!m_walked.insert(&file).second) return;
    ProgramFile* const outer = m_file;
    m_file = &file;
    walkAll(file.read.forms, 0, flow);
    m_file = outer;
}

void CodeWalk::walkAll(const std::vector<Form>& forms, size_t first, Flow& flow) {
    for (size_t i = first; i < forms.size(); ++i) walk(forms[i], flow);
}

void CodeWalk::walk(const Form& form, Flow& flow) {
    if (m_depth >= DEEPEST) return;
    ++m_depth;
    switch (form.kind) {
        case Form::Kind::symbol:
            onVariable(form);
            break;
        case Form::Kind::string:
            onString(form, nullptr, 0);
            break;
        case Form::Kind::quote:
            if (!form.items.empty()) walkData(form.items[0]);
            break;
        case Form::Kind::list:
            walkList(form, flow);
            break;
        default:
            break;
    }
    --m_depth;
}

void CodeWalk::walkList(const Form& form, Flow& flow) {
    if (form.items.empty()) return;
    const Form& head = form.items[0];
    if (head.isSymbol()) {
        if (head.word->special != SpecialForm::none) return walkSpecial(form, head.word->special, flow);
        if (head.word == m_program.load) return walkLoad(form, flow);
        return walkCall(form, flow);
    }
    walkAll(form.items, 1, flow);
    if (isLambda(head))
        walkLambda(head, 1, flow);
    else if (head.isList())
        walk(head, flow);
    else
        onMalformed(form,
                    u"a list that is run begins with the name of a function; write '( where it is data");
}

void CodeWalk::walkSpecial(const Form& form, SpecialForm special, Flow& flow) {
    const size_t count = form.argumentCount();
    const auto wants = [&](bool isRight, const char16_t* what) {
        if (!isRight && form.isClosed) onMalformed(form, std::u16string(what));
        return isRight;
    };
    switch (special) {
        case SpecialForm::quote:
            if (wants(count == 1, u"quote takes one form")) walkData(form.items[1]);
            break;
        case SpecialForm::function:
            if (!wants(count == 1, u"function takes one form")) break;
            if (isLambda(form.items[1])) {
                Flow unknown(DialogSet::any());
                walkLambda(form.items[1], 1, unknown);
            } else {
                walkData(form.items[1]);
            }
            break;
        case SpecialForm::ifForm:
            wants(count >= 2, u"if takes a condition and what to do when it holds");
            wants(count <= 3,
                  u"if takes at most 3 parts: a condition and what to do in each case (see progn)");
            walkIf(form, flow);
            break;
        case SpecialForm::cond:
            walkCond(form, flow);
            break;
        case SpecialForm::andForm:
        case SpecialForm::orForm:
            walkJunction(form, special == SpecialForm::orForm, flow);
            break;
        case SpecialForm::progn:
            walkAll(form.items, 1, flow);
            break;
        case SpecialForm::setq:
            walkSetq(form, flow);
            break;
        case SpecialForm::whileForm:
            wants(count >= 1, u"while takes a condition");
            walkLoop(form, 1, flow);
            break;
        case SpecialForm::repeat:
            wants(count >= 1, u"repeat takes a count");
            if (count >= 1) walk(form.items[1], flow);
            walkLoop(form, 2, flow);
            break;
        case SpecialForm::foreach:
            if (!wants(count >= 2 && form.items[1].isSymbol(), u"foreach takes a variable and a list")) break;
            walk(form.items[2], flow);
            onSet(form.items[1].word, false);
            walkForeach(form, flow);
            break;
        case SpecialForm::lambda: {
            Flow unknown(DialogSet::any());
            walkLambda(form, 1, unknown);
            break;
        }
        case SpecialForm::defun:
            walkDefun(form);
            break;
        case SpecialForm::catchError:
            wants(count == 1 || count == 2, u"catch-error takes a form and a handler");
            if (count >= 1) walk(form.items[1], flow);
            if (count >= 2) walkFunctionValue(form.items[2], 1, flow);
            break;
        case SpecialForm::none:
            break;
    }
}

void CodeWalk::walkCall(const Form& form, Flow& flow) {
    for (size_t i = 1; i < form.items.size(); ++i)
        walkArgument(form, i, argumentOf(*form.items[0].word, i - 1), flow);
    onCall(form.items[0], &form, form.argumentCount(), flow);
}

void CodeWalk::walkArgument(const Form& call, size_t index, const Argument& argument, Flow& flow) {
    const Form& form = call.items[index];
    if (form.isString()) onString(form, &call, index - 1);
    if (argument.role == Role::function) {
        const bool isMapcar = call.head()->name == u"MAPCAR";
        return walkFunctionValue(form, isMapcar ? std::optional(call.argumentCount() - 1) : std::nullopt,
                                 flow, isMapcar ? &call : nullptr);
    }
    if (argument.role == Role::sessionForms && form.kind == Form::Kind::quote && !form.items.empty()) {
        const Form& name = call.items[1];
        const Dialog* dialog = name.isString() ? m_program.knowledge.dialog(name.text()) : nullptr;
        Flow session(dialog ? DialogSet(dialog) : DialogSet::any());
        return walkAll(form.items[0].items, 0, session);
    }
    if (!form.isString()) walk(form, flow);
    if (argument.role == Role::any) return;
    const std::vector<const Form*> literals = literalsOf(form);
    for (const Form* literal : literals) walkLiteral(call.items[0], *literal, index - 1, argument, flow);
    const Binding* binding = form.isSymbol() ? bindingOf(form) : nullptr;
    if (binding && binding->definition)
        onParameter(call.items[0], index - 1, *binding->definition, binding->parameter, argument, flow);
    else if (literals.empty())
        onComputed(call.items[0], form, index - 1, argument);
}

void CodeWalk::walkLiteral(const Form& name, const Form& literal, size_t index, const Argument& argument,
                           Flow& flow) {
    onLiteral(name, literal, index, argument);
    if (argument.role != Role::action || !literal.isString() || m_depth >= DEEPEST) return;
    const ReadText& text = m_program.textOf(literal);
    onAction(literal, text);
    Flow action(flow.current());
    // What is bound around it is no longer so when it runs.
    std::vector<Binding> outer;
    outer.swap(m_bindings);
    m_depth += 10;
    walkAll(text.forms, 0, action);
    m_depth -= 10;
    m_bindings.swap(outer);
}

// The last binding of a name counts; none where the name has been set since.
const CodeWalk::Binding* CodeWalk::bindingOf(const Form& symbol) const {
    for (auto at = m_bindings.rbegin(); at != m_bindings.rend(); ++at)
        if (at->word == symbol.word) return &*at;
    return nullptr;
}

std::vector<const Form*> CodeWalk::literalsOf(const Form& form) const {
    if (isLiteral(form)) return {&form};
    const std::optional<size_t> place =
        form.items.size() == 2 && form.items[1].isSymbol() ? placeTaken(form.head()) : std::nullopt;
    const Binding* binding = form.isSymbol() ? bindingOf(form) : place ? bindingOf(form.items[1]) : nullptr;
    std::vector<const Form*> literals;
    if (!binding) return literals;
    for (const Form* element : binding->elements) {
        const Form* taken = !place                           ? element
                            : element->items.size() > *place ? &element->items[*place]
                                                             : nullptr;
        if (taken && isLiteral(*taken)) literals.push_back(taken);
    }
    return literals;
}

// `mapping` is the call of mapcar whose lists the function goes through.
void CodeWalk::walkFunctionValue(const Form& form, std::optional<size_t> count, Flow& flow,
                                 const Form* mapping) {
    const bool isFunctionForm = form.head() && form.head()->special == SpecialForm::function;
    const bool isQuoteForm = form.head() && form.head()->special == SpecialForm::quote;
    const Form* named = form.kind == Form::Kind::quote && !form.items.empty()       ? &form.items[0]
                        : (isFunctionForm || isQuoteForm) && form.items.size() == 2 ? &form.items[1]
                                                                                    : nullptr;
    if (isLambda(form)) named = &form;
    if (named && isLambda(*named)) return walkLambda(*named, 1, flow, mapping);
    if (!named || !named->isSymbol()) return walk(form, flow);
    for (size_t i = 2; mapping && i < mapping->items.size(); ++i) {
        const Argument argument = argumentOf(*named->word, i - 2);
        if (argument.role == Role::any) continue;
        const std::vector<const Form*> elements = elementsOf(mapping->items[i]);
        for (const Form* element : elements) walkLiteral(*named, *element, i - 2, argument, flow);
        if (elements.empty()) onComputed(*named, mapping->items[i], i - 2, argument);
    }
    onCall(*named, nullptr, count, flow);
}

void CodeWalk::walkData(const Form& form) {
    if (m_depth >= DEEPEST) return;
    ++m_depth;
    if (form.isString()) onString(form, nullptr, 0);
    if (form.isSymbol()) onDataSymbol(form);
    if (isLambda(form)) {
        Flow unknown(DialogSet::any());
        walkLambda(form, 1, unknown);
    } else {
        for (const Form& item : form.items) walkData(item);
    }
    --m_depth;
}

void CodeWalk::walkIf(const Form& form, Flow& flow) {
    if (form.items.size() < 2) return;
    const Flow before = flow;
    walk(form.items[1], flow);
    bool isTurned = false;
    const bool opens = testsOpening(form.items[1], m_program.newDialog, &isTurned);
    Flow yes = opens && isTurned ? before : flow;
    Flow no = opens && !isTurned ? before : flow;
    if (form.items.size() > 2) walk(form.items[2], yes);
    walkAll(form.items, 3, no);
    // Where no dialog came up the program has mostly ended.
    if (opens && !yes.isLevelWith(no)) {
        flow = isTurned ? no : yes;
        return;
    }
    yes.join(no);
    flow = yes;
}

void CodeWalk::walkCond(const Form& form, Flow& flow) {
    std::optional<Flow> end;
    bool hasElse = false;
    for (size_t i = 1; i < form.items.size(); ++i) {
        const Form& clause = form.items[i];
        if (!clause.isList() || clause.items.empty()) {
            onMalformed(clause, u"a clause of cond is a list: a condition and what to do when it holds");
            continue;
        }
        const Form& test = clause.items[0];
        const Flow before = flow;
        walk(test, flow);
        bool isTurned = false;
        const bool opens = testsOpening(test, m_program.newDialog, &isTurned);
        Flow inside = opens && isTurned ? before : flow;
        if (opens && !isTurned) flow = before;
        walkAll(clause.items, 1, inside);
        const bool isFunction = test.isSymbol() && (test.word->function || test.word->definition) &&
                                !test.word->isSet && clause.items.size() > 1;
        if (isFunction) onMalformed(clause, u"a clause of cond begins with its condition: ((function …) …)");
        hasElse = hasElse || (test.isSymbol() && test.word->name == u"T");
        const bool isFailure = opens && isTurned;
        if (isFailure) continue;
        if (end)
            end->join(inside);
        else
            end = inside;
    }
    if (!end) return;
    if (!hasElse) end->join(flow);
    flow = *end;
}

void CodeWalk::walkJunction(const Form& form, bool stopsAtTrue, Flow& flow) {
    if (form.items.size() < 2) return;
    walk(form.items[1], flow);
    for (size_t i = 2; i < form.items.size(); ++i) {
        bool isTurned = false;
        const bool opens = testsOpening(form.items[i - 1], m_program.newDialog, &isTurned);
        Flow more = flow;
        walk(form.items[i], more);
        // The rest of (and (wex_new_dialog …) …) runs where it went well; of (or …) where it failed.
        if (opens && isTurned == stopsAtTrue)
            flow = more;
        else if (!opens)
            flow.join(more);
    }
}

void CodeWalk::walkLoop(const Form& form, size_t firstOfBody, Flow& flow) {
    const Flow before = flow;
    walkAll(form.items, firstOfBody, flow);
    if (flow.isLevelWith(before)) {
        flow.join(before);
        return;
    }
    // What one turn leaves is what the next one finds.
    flow.join(before);
    walkAll(form.items, firstOfBody, flow);
}

void CodeWalk::walkForeach(const Form& form, Flow& flow) {
    const size_t outer = m_bindings.size();
    m_bindings.push_back({form.items[1].word, elementsOf(form.items[2])});
    walkLoop(form, 3, flow);
    m_bindings.resize(outer);
}

std::vector<Word*> CodeWalk::takeParameters(const Form& owner, const Form& list) {
    std::vector<Word*> parameters;
    const bool isNil = list.isSymbol() && list.word->name == u"NIL";
    if (!list.isList() && !isNil) {
        onMalformed(owner, u"the list of parameters is missing");
        return parameters;
    }
    bool isLocal = false;
    for (const Form& parameter : list.items) {
        if (!parameter.isSymbol() || parameter.word->special != SpecialForm::none) {
            onMalformed(parameter, u"a parameter is a name");
        } else if (parameter.word == m_program.slash) {
            isLocal = true;
        } else {
            onSet(parameter.word, true);
            m_bindings.push_back({parameter.word});
            if (!isLocal) parameters.push_back(parameter.word);
        }
    }
    return parameters;
}

void CodeWalk::walkLambda(const Form& form, size_t first, Flow& flow, const Form* mapping) {
    if (form.items.size() <= first) return onMalformed(form, u"the list of parameters is missing");
    const size_t outer = m_bindings.size();
    const size_t count = takeParameters(form, form.items[first]).size();
    for (size_t i = 0; mapping && i < count && i + 2 < mapping->items.size(); ++i)
        m_bindings[outer + i].elements = elementsOf(mapping->items[i + 2]);
    walkAll(form.items, first + 1, flow);
    m_bindings.resize(outer);
}

void CodeWalk::walkDefun(const Form& form) {
    if (form.items.size() < 3 || !form.items[1].isSymbol()) {
        if (form.isClosed) onMalformed(form, u"defun takes a name and a list of parameters");
        return;
    }
    if (knowsDefinition(form)) return;
    Word* const word = form.items[1].word;
    const size_t outer = m_bindings.size();
    const size_t count = takeParameters(form.items[1], form.items[2]).size();
    Flow body = onDefinition(form, word, count);
    for (size_t i = 0; i < count; ++i) {
        m_bindings[outer + i].definition = word->definition;
        m_bindings[outer + i].parameter = i;
    }
    walkAll(form.items, 3, body);
    m_bindings.resize(outer);
    onDefinitionEnd(word, body);
}

void CodeWalk::walkSetq(const Form& form, Flow& flow) {
    if (form.argumentCount() == 0 && form.isClosed) onMalformed(form, u"setq takes a variable and its value");
    if (form.argumentCount() % 2 != 0 && form.isClosed)
        onMalformed(form, u"setq takes pairs, and the value of the last variable is missing");
    for (size_t i = 1; i < form.items.size(); i += 2) {
        const Form& target = form.items[i];
        if (i + 1 < form.items.size()) walk(form.items[i + 1], flow);
        if (target.isSymbol()) {
            if (bindingOf(target)) m_bindings.push_back({target.word});
            onSet(target.word, false);
        }
        if (!target.isSymbol() && form.isClosed)
            onMalformed(target, u"setq sets variables, and this is none");
    }
}

void CodeWalk::walkLoad(const Form& form, Flow& flow) {
    walkAll(form.items, 1, flow);
    if (form.items.size() < 2) return onCall(form.items[0], &form, form.argumentCount(), flow);
    const Form& name = form.items[1];
    ProgramFile* const file = name.isString() ? m_program.loaded(name.text()) : nullptr;
    onLoad(form, file != nullptr);
    onCall(form.items[0], &form, form.argumentCount(), flow);
    if (file) walkFile(*file, flow);
}

bool CodeWalk::isLambda(const Form& form) const {
    return form.head() && form.head()->special == SpecialForm::lambda;
}

}  // namespace check
