// Judges each call of a program: its function, its arguments, its dialog and tile.
#pragma once

#include <functional>
#include <unordered_map>

#include "host/check/CodeWalk.h"

namespace check {

class CallReport : public CodeWalk {
  public:
    using Tell =
        std::function<void(const ProgramFile& file, uint32_t begin, uint32_t end, std::u16string text)>;

    // `atCalls`: which dialog is current, by the symbols that name the functions called.
    CallReport(Program& program, const std::unordered_map<const Form*, DialogSet>& atCalls, Tell tell);

  protected:
    void onCall(const Form& name, const Form* call, std::optional<size_t> count, Flow& flow) override;
    void onMalformed(const Form& form, const std::u16string& why) override;
    Flow onDefinition(const Form&, Word* word, size_t) override { return Flow(word->definition->atCall); }
    void onVariable(const Form& symbol) override;
    void onAction(const Form& string, const ReadText& text) override;

  private:
    void tell(const Form& form, std::u16string text) {
        m_tell(file(), form.begin, form.end, std::move(text));
    }
    void tellUnknown(const Form& name);
    void checkCount(const Form& name, size_t count);
    void checkArguments(const Form& name, const Form& call);
    void checkValue(const Form& form, const Function& function, size_t index, Role role);
    void checkDialog(const Form& form);
    void checkTile(const Form& name, const Form& form, TileKinds kinds);
    const std::vector<std::u16string>& callableNames();
    const std::vector<std::u16string>& variableNames();

    const std::unordered_map<const Form*, DialogSet>& m_atCalls;
    Tell m_tell;
    std::vector<std::u16string> m_callable;
    std::vector<std::u16string> m_variables;
};

}  // namespace check
