// What a program defines, sets, opens and names.
#pragma once

#include <map>
#include <set>
#include <unordered_set>

#include "host/check/CodeWalk.h"

namespace check {

class Definitions : public CodeWalk {
  public:
    using CodeWalk::CodeWalk;

    struct Opening {
        const Form* name = nullptr;  // the string
        const ProgramFile* file = nullptr;
    };

    // Walks the program until nothing more comes to light.
    void collect(const std::vector<ProgramFile*>& files);

    // The openings of dialogs that stand in the program by name, in the program's order, and whether it opens
    // others too.
    const std::vector<Opening>& openings() const { return m_openings; }
    bool opensOthers() const { return m_opensOthers; }
    // Whether a string of the program, but for the names of sessions, is that text. In any letter case.
    bool mentions(std::u16string_view text) const;
    // Whether the program acts on a tile or reads it, or may do so: its key stands anywhere but where a tile
    // is only filled or looked at, or begins with a text of which the program makes keys.
    bool touches(std::u16string_view key) const;
    // The same by the control's id.
    bool touches(int id) const { return m_touchedIds.contains(id); }

  protected:
    void onCall(const Form& name, const Form* call, std::optional<size_t> count, Flow& flow) override;
    void onLiteral(const Form& name, const Form& literal, size_t index, const Argument& argument) override;
    void onComputed(const Form& name, const Form& form, size_t index, const Argument& argument) override;
    void onParameter(const Form& name, size_t index, Definition& definition, size_t parameter,
                     const Argument& argument, const Flow& flow) override;
    Flow onDefinition(const Form& form, Word* word, size_t count) override;
    void onSet(Word* word, bool isParameter) override;
    void onString(const Form& string, const Form* call, size_t argument) override;
    void onDataSymbol(const Form& symbol) override;
    void onVariable(const Form& symbol) override;
    void onLoad(const Form& form, bool isFound) override;

  private:
    void noteSet(const Form* target);

    std::vector<Opening> m_openings;
    bool m_opensOthers = false;
    bool m_isChanged = false;
    // Strings that have been taken.
    std::unordered_set<const Form*> m_seen;
    std::set<std::u16string, std::less<>> m_mentioned;
    std::set<std::u16string, std::less<>> m_touched;
    std::set<std::u16string, std::less<>> m_beginnings;
    std::set<int> m_touchedIds;
};

}  // namespace check
