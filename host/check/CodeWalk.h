// Goes through the code of a program in the order in which it runs.
#pragma once

#include <set>
#include <string>

#include "host/check/Program.h"

namespace check {

// What a walk meets is told to the virtual functions. Quoted lists are data, but for those that an argument's
// role makes code: lambdas, actions, the forms of sessions.
class CodeWalk {
  public:
    explicit CodeWalk(Program& program) : m_program(program) {}
    virtual ~CodeWalk() = default;

    // All of the program, the files that it loads where it loads them.
    void walkProgram(const std::vector<ProgramFile*>& files);

  protected:
    // A call by name, when its arguments have been walked; `name` is the symbol, `count` the number of
    // arguments where it is known, and the form that of the call, null where the call comes from a function
    // such as mapcar.
    virtual void onCall(const Form&, const Form*, std::optional<size_t>, Flow&) {}
    // What an argument of a call is: itself where it is literal, each element where it goes through a literal
    // list. `name` is the symbol of the function, `index` counts from 0.
    virtual void onLiteral(const Form& /*name*/, const Form& /*literal*/, size_t /*index*/, const Argument&) {
    }
    // An argument whose role matters and that isn't literal.
    virtual void onComputed(const Form& /*name*/, const Form& /*form*/, size_t /*index*/, const Argument&) {}
    // An argument that is a parameter of the function around it.
    virtual void onParameter(const Form& /*name*/, size_t /*index*/, Definition&, size_t /*parameter*/,
                             const Argument&, const Flow&) {}
    virtual void onMalformed(const Form&, const std::u16string&) {}
    // Whether a walk before this one has seen all there is to see of a definition.
    virtual bool knowsDefinition(const Form&) { return false; }
    // A function's definition: when its body is walked, and afterwards.
    virtual Flow onDefinition(const Form&, Word*, size_t) { return Flow(DialogSet::any()); }
    virtual void onDefinitionEnd(Word*, const Flow&) {}
    virtual void onVariable(const Form&) {}
    virtual void onSet(Word*, bool /*isParameter*/) {}
    // A string that is a value of its own or in data; `call` is what it is an argument of, if it is one.
    virtual void onString(const Form&, const Form* /*call*/, size_t /*argument*/) {}
    virtual void onDataSymbol(const Form&) {}
    virtual void onAction(const Form&, const ReadText&) {}
    virtual void onLoad(const Form&, bool /*isFound*/) {}

    // What a name is while its scope lasts: an element of a literal list, or a parameter of a function.
    struct Binding {
        const Word* word = nullptr;
        std::vector<const Form*> elements;
        Definition* definition = nullptr;
        size_t parameter = 0;
    };
    const Binding* bindingOf(const Form& symbol) const;

    const ProgramFile& file() const { return *m_file; }

    Program& m_program;

  private:
    void walkFile(ProgramFile& file, Flow& flow);
    void walkAll(const std::vector<Form>& forms, size_t first, Flow& flow);
    void walk(const Form& form, Flow& flow);
    void walkList(const Form& form, Flow& flow);
    void walkSpecial(const Form& form, SpecialForm special, Flow& flow);
    void walkCall(const Form& form, Flow& flow);
    void walkArgument(const Form& call, size_t index, const Argument& argument, Flow& flow);
    void walkLiteral(const Form& name, const Form& literal, size_t index, const Argument& argument,
                     Flow& flow);
    void walkFunctionValue(const Form& form, std::optional<size_t> count, Flow& flow,
                           const Form* mapping = nullptr);
    void walkData(const Form& form);
    void walkIf(const Form& form, Flow& flow);
    void walkCond(const Form& form, Flow& flow);
    void walkJunction(const Form& form, bool stopsAtTrue, Flow& flow);
    void walkLoop(const Form& form, size_t firstOfBody, Flow& flow);
    void walkLambda(const Form& form, size_t parameters, Flow& flow, const Form* mapping = nullptr);
    void walkForeach(const Form& form, Flow& flow);
    void walkDefun(const Form& form);
    void walkSetq(const Form& form, Flow& flow);
    void walkLoad(const Form& form, Flow& flow);
    std::vector<Word*> takeParameters(const Form& owner, const Form& list);

    std::vector<const Form*> literalsOf(const Form& form) const;
    bool isLambda(const Form& form) const;

    ProgramFile* m_file = nullptr;
    std::set<const ProgramFile*> m_walked;
    std::vector<Binding> m_bindings;
    int m_depth = 0;
};

}  // namespace check
