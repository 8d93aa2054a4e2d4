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

    // Whether the program surely never opens the dialog of that name.
    using IsNeverOpened = std::function<bool(std::u16string_view dialog)>;

    // `atCalls`: which dialog is current, by the symbols that name the functions called.
    CallReport(Program& program, const std::unordered_map<const Form*, DialogSet>& atCalls, Tell tell,
               IsNeverOpened isNeverOpened);

  protected:
    void onCall(const Form& name, const Form* call, std::optional<size_t> count, Flow& flow) override;
    void onLiteral(const Form& name, const Form& literal, size_t index, const Argument& argument) override;
    void onComputed(const Form& name, const Form& form, size_t index, const Argument& argument) override;
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
    void checkValue(const Form& name, const Form& form, size_t index, Role role);
    void checkDialog(const Form& name, const Form& form);
    void checkTile(const Form& name, const Form& form, TileKinds kinds);
    // The name that a word was probably meant to be, in lower case; empty where there is none.
    std::u16string nearest(const Word& word, const std::vector<std::u16string>& names);
    const std::vector<std::u16string>& callableNames();
    const std::vector<std::u16string>& variableNames();

    const std::unordered_map<const Form*, DialogSet>& m_atCalls;
    Tell m_tell;
    IsNeverOpened m_isNeverOpened;
    std::unordered_map<const Word*, std::u16string> m_nearest;
    std::vector<std::u16string> m_callable;
    std::vector<std::u16string> m_variables;
};

}  // namespace check
