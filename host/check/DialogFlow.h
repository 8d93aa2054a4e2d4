// Finds for each call which dialog is current there.
#pragma once

#include <unordered_map>

#include "host/check/CodeWalk.h"

namespace check {

// Functions are followed to where they are called, actions to where they are bound. A function that nobody
// calls, or of which more is done than calling it, may meet any dialog.
class DialogFlow : public CodeWalk {
  public:
    using CodeWalk::CodeWalk;

    void follow(const std::vector<ProgramFile*>& files);

    // By the symbol that names the function called.
    const std::unordered_map<const Form*, DialogSet>& atCalls() const { return m_atCalls; }

  protected:
    void onCall(const Form& name, const Form* call, std::optional<size_t> count, Flow& flow) override;
    void onLiteral(const Form& name, const Form& literal, size_t index, const Argument& argument) override;
    void onComputed(const Form& name, const Form& form, size_t index, const Argument& argument) override;
    void onParameter(const Form& name, size_t index, Definition& definition, size_t parameter,
                     const Argument& argument, const Flow& flow) override;
    bool knowsDefinition(const Form& form) override;
    Flow onDefinition(const Form& form, Word* word, size_t count) override;
    void onDefinitionEnd(Word* word, const Flow& flow) override;

  private:
    void noteWideChange();
    void name(const Form& function, size_t index, const DialogSet& dialogs);

    std::unordered_map<const Form*, DialogSet> m_atCalls;
    // Of the call whose arguments have just been walked.
    DialogSet m_named;
    bool m_isChanged = false;
    // A clock of changes: when each definition was walked last, and when something changed that may reach any
    // of them.
    unsigned m_clock = 1;
    unsigned m_widelyChanged = 0;
    std::unordered_map<const Form*, unsigned> m_walkedAt;
};

}  // namespace check
