// The files of a program, and what it defines.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/check/Flow.h"
#include "host/check/Form.h"
#include "host/check/FormReader.h"
#include "host/check/Knowledge.h"

namespace check {

struct Source {
    std::u16string name;
    std::u16string text;
};

// The file that `load` means by a name; nothing where there is none.
using FindSource = std::function<std::optional<Source>(std::u16string_view name)>;

struct ProgramFile {
    Source source;
    ReadText read;
};

// A function of the program. Of several definitions of one name each counts.
struct Definition {
    Word* word = nullptr;
    std::vector<size_t> parameterCounts;
    // What the parameters are, as far as the body hands them on while the caller's dialog is current.
    std::vector<Argument> arguments;
    // The dialogs whose names are given for each parameter that is one.
    std::vector<DialogSet> named;
    DialogSet atCall;
    Flow effect{DialogSet()};
    unsigned atCallChanged = 0;  // when, by the clock of who follows the calls
};

// What an argument of that function is, counted from 0.
Argument argumentOf(const Word& function, size_t index);

class Program {
  public:
    Program(const Knowledge& knowledge, FindSource find);

    ProgramFile& addFile(Source source);
    // The file that a call of `load` names, read at the first question; null where it can't be found.
    ProgramFile* loaded(std::u16string_view name);
    // The forms of an action's text.
    const ReadText& textOf(const Form& string);
    // The same where they have been asked for; null otherwise.
    const ReadText* knownText(const Form& string) const;
    Definition& define(Word* word);

    const Knowledge& knowledge;
    Words words;
    std::vector<std::unique_ptr<ProgramFile>> files;
    std::vector<std::unique_ptr<Definition>> definitions;
    // Code or functions come from where a check can't look.
    bool hasForeignCode = false;

    Word* const newDialog = words.at(u"WEX_NEW_DIALOG");
    Word* const startDialog = words.at(u"WEX_START_DIALOG");
    Word* const load = words.at(u"LOAD");
    Word* const slash = words.at(u"/");

  private:
    FindSource m_find;
    std::map<std::u16string, ProgramFile*, std::less<>> m_loaded;
    std::unordered_map<const Form*, std::unique_ptr<ReadText>> m_texts;
};

}  // namespace check
