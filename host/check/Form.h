// A program as it stands in its file: forms that know their places.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/lisp/SpecialForms.h"

namespace check {

struct Function;
struct Definition;
using lisp::SpecialForm;

// A name that occurs in a program, in capitals, and what the program makes of it.
struct Word {
    std::u16string name;
    const Function* function = nullptr;  // of the host or a plug-in
    Definition* definition = nullptr;    // by defun
    SpecialForm special{};
    bool isSet = false;    // a parameter, a local variable, or set somewhere
    bool isGiven = false;  // set by more than a call
    bool isCalled = false;
    bool isValue = false;  // named where it isn't called: who knows who calls it
};

class Words {
  public:
    // The word of that name in any letter case. Lives as long as this table.
    Word* at(std::u16string_view name);
    auto begin() const { return m_words.begin(); }
    auto end() const { return m_words.end(); }

  private:
    // The keys view the names of their words.
    std::unordered_map<std::u16string_view, std::unique_ptr<Word>> m_words;
    std::u16string m_capitals;
};

// What stands between the quotation marks of a string, as it is meant.
struct StringContent {
    std::u16string text;
    std::vector<uint32_t> offsets;  // where each unit stands in the file, and the closing mark
};

// Small, as a program is walked through several times: most forms are words.
struct Form {
    enum class Kind : uint8_t { symbol, integer, real, string, list, quote };

    Kind kind = Kind::list;
    bool isClosed = true;  // false for a list or string that the reader had to end
    bool isDotted = false;
    int32_t number = 0;  // an integer's
    // Where it stands in the file, in UTF-16 units; the end is behind its last character.
    uint32_t begin = 0;
    uint32_t end = 0;
    Word* word = nullptr;                          // a symbol's
    std::unique_ptr<const StringContent> content;  // a string's
    std::vector<Form> items;                       // the elements of a list; the one form behind a quote mark

    bool isList() const { return kind == Kind::list; }
    bool isString() const { return kind == Kind::string; }
    bool isSymbol() const { return kind == Kind::symbol; }
    // A string's content; empty for other forms.
    const std::u16string& text() const {
        static const std::u16string NONE;
        return content ? content->text : NONE;
    }
    std::span<const uint32_t> offsets() const {
        return content ? content->offsets : std::span<const uint32_t>();
    }
    // The symbol that the list begins with; null where it doesn't.
    Word* head() const { return isList() && !items.empty() ? items[0].word : nullptr; }
    // How many elements stand behind the first one.
    size_t argumentCount() const { return items.empty() ? 0 : items.size() - 1; }
};

// What is wrong at a place of a text.
struct Fault {
    uint32_t begin = 0;
    uint32_t end = 0;
    std::u16string text;
};

}  // namespace check
