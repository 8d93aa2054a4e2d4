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

std::u16string partsWanted(const char16_t* what) { return std::u16string(what); }

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
        if (!isRight && form.isClosed) onMalformed(form, partsWanted(what));
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
            walkLoop(form, 3, flow);
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
    const Word* const word = form.items[0].word;
    const Function* function = word->definition ? nullptr : word->function;
    for (size_t i = 1; i < form.items.size(); ++i)
        walkArgument(form, i, function ? function->argument(i - 1) : Argument{}, flow);
    onCall(form.items[0], &form, form.argumentCount(), flow);
}

void CodeWalk::walkArgument(const Form& call, size_t index, const Argument& argument, Flow& flow) {
    const Form& form = call.items[index];
    if (form.isString()) onString(form, &call, index - 1);
    if (form.isString() && argument.role == Role::action) {
        const ReadText& text = m_program.textOf(form);
        onAction(form, text);
        Flow action(flow.current());
        if (m_depth < DEEPEST) {
            m_depth += 10;
            walkAll(text.forms, 0, action);
            m_depth -= 10;
        }
    } else if (form.isString()) {
        return;
    } else if (argument.role == Role::function) {
        const bool isMapcar = call.head()->name == u"MAPCAR";
        walkFunctionValue(form, isMapcar ? std::optional(call.argumentCount() - 1) : std::nullopt, flow);
    } else if (argument.role == Role::sessionForms && form.kind == Form::Kind::quote && !form.items.empty()) {
        const Form& name = call.items[1];
        const Dialog* dialog = name.isString() ? m_program.knowledge.dialog(name.text) : nullptr;
        Flow session(dialog ? DialogSet(dialog) : DialogSet::any());
        walkAll(form.items[0].items, 0, session);
    } else {
        walk(form, flow);
    }
}

void CodeWalk::walkFunctionValue(const Form& form, std::optional<size_t> count, Flow& flow) {
    const bool isFunctionForm = form.head() && form.head()->special == SpecialForm::function;
    const bool isQuoteForm = form.head() && form.head()->special == SpecialForm::quote;
    const Form* named = form.kind == Form::Kind::quote && !form.items.empty()       ? &form.items[0]
                        : (isFunctionForm || isQuoteForm) && form.items.size() == 2 ? &form.items[1]
                                                                                    : nullptr;
    if (isLambda(form)) named = &form;
    if (named && isLambda(*named))
        walkLambda(*named, 1, flow);
    else if (named && named->isSymbol())
        onCall(*named, nullptr, count, flow);
    else
        walk(form, flow);
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

size_t CodeWalk::takeParameters(const Form& owner, const Form& list) {
    const bool isNil = list.isSymbol() && list.word->name == u"NIL";
    if (!list.isList() && !isNil) {
        onMalformed(owner, u"the list of parameters is missing");
        return 0;
    }
    size_t count = 0;
    bool isLocal = false;
    for (const Form& parameter : list.items) {
        if (!parameter.isSymbol() || parameter.word->special != SpecialForm::none) {
            onMalformed(parameter, u"a parameter is a name");
        } else if (parameter.word == m_program.slash) {
            isLocal = true;
        } else {
            onSet(parameter.word, true);
            count += isLocal ? 0 : 1;
        }
    }
    return count;
}

void CodeWalk::walkLambda(const Form& form, size_t parameters, Flow& flow) {
    if (form.items.size() <= parameters) return onMalformed(form, u"the list of parameters is missing");
    takeParameters(form, form.items[parameters]);
    walkAll(form.items, parameters + 1, flow);
}

void CodeWalk::walkDefun(const Form& form) {
    if (form.items.size() < 3 || !form.items[1].isSymbol()) {
        if (form.isClosed) onMalformed(form, u"defun takes a name and a list of parameters");
        return;
    }
    Word* const word = form.items[1].word;
    const size_t count = takeParameters(form.items[1], form.items[2]);
    Flow body = onDefinition(form, word, count);
    walkAll(form.items, 3, body);
    onDefinitionEnd(word, body);
}

void CodeWalk::walkSetq(const Form& form, Flow& flow) {
    if (form.argumentCount() == 0 && form.isClosed) onMalformed(form, u"setq takes a variable and its value");
    if (form.argumentCount() % 2 != 0 && form.isClosed)
        onMalformed(form, u"setq takes pairs, and the value of the last variable is missing");
    for (size_t i = 1; i < form.items.size(); i += 2) {
        const Form& target = form.items[i];
        if (i + 1 < form.items.size()) walk(form.items[i + 1], flow);
        if (target.isSymbol())
            onSet(target.word, false);
        else if (form.isClosed)
            onMalformed(target, u"setq sets variables, and this is none");
    }
}

void CodeWalk::walkLoad(const Form& form, Flow& flow) {
    walkAll(form.items, 1, flow);
    if (form.items.size() < 2) return onCall(form.items[0], &form, form.argumentCount(), flow);
    const Form& name = form.items[1];
    ProgramFile* const file = name.isString() ? m_program.loaded(name.text) : nullptr;
    onLoad(form, file != nullptr);
    onCall(form.items[0], &form, form.argumentCount(), flow);
    if (file) walkFile(*file, flow);
}

bool CodeWalk::isLambda(const Form& form) const {
    return form.head() && form.head()->special == SpecialForm::lambda;
}

}  // namespace check
