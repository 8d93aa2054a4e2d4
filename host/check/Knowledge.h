// What a check knows of the host: its functions and the dialogs in place.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lisp {
class Machine;
}

namespace check {

// What an argument is, as far as more than a value is known of it.
enum class Role : uint8_t {
    any,
    dialog,  // the name of a dialog
    action,  // Lisp text that runs while the dialog runs
    tile,    // a key or a control id
    integer,
    text,
    mode,         // of wex_mode_tile
    function,     // a function to be called
    sessionForms  // a quoted list of forms that work the dialog
};

// Kinds of tile, as bits.
using TileKinds = uint32_t;
constexpr TileKinds ANY_KIND = 0;

struct Argument {
    Role role = Role::any;
    TileKinds kinds = ANY_KIND;  // that a tile may be of
};

struct Function {
    std::u16string name;
    std::u16string usage;  // name and arguments, where they are known
    int minimum = 0;
    int maximum = -1;  // -1: any number
    std::vector<Argument> arguments;

    // Counted from 0; the last one that is told holds for all behind it where there may be any number.
    Argument argument(size_t index) const;
    // Whether it matters which dialog is current.
    bool isAboutDialogs() const;
};

// Reads "name argument:what [argument …]" as src/LispSignatures.h explains it.
Function parseSignature(std::u16string_view text);

struct DialogTile {
    std::u16string key;  // in capitals; empty where it has none
    int id = 0;
    std::u16string kind;  // in words, "list control"; empty where there is no control
};

struct Dialog {
    std::u16string name;
    std::vector<DialogTile> tiles;
    bool hasTemplate = true;

    // Null where it has no such tile.
    const DialogTile* tileOfKey(std::u16string_view key) const;
    const DialogTile* tileOfId(int id) const;
};

// The bit of a kind in words; ANY_KIND for one that no function asks for.
TileKinds kindOfWords(std::u16string_view words);
// "tree", "list box or drop-down list".
std::u16string wordsOfKinds(TileKinds kinds);

class Knowledge {
  public:
    // A later function takes the place of one of the same name.
    void add(Function function);
    // What the arguments of a host's function are; its counts stay. False where there is no such function.
    bool describe(std::u16string_view signature);
    // The first dialog of a name is the one that is found.
    void add(Dialog dialog);

    // In any letter case; null where there is none.
    const Dialog* dialog(std::u16string_view name) const;
    const std::unordered_map<std::u16string, Function>& functions() const { return m_functions; }
    const std::unordered_map<std::u16string, Dialog>& dialogs() const { return m_dialogs; }

  private:
    // By name in capitals.
    std::unordered_map<std::u16string, Function> m_functions;
    std::unordered_map<std::u16string, Dialog> m_dialogs;
};

// Adds the functions that the Lisp knows at this moment, with their counts of arguments.
void addFunctions(Knowledge& knowledge, const lisp::Machine& lisp);

// Tells `knowledge` what the arguments of the Lisp's and the host's own functions are, where that is more
// than values. Gives the signatures of which it has no function.
std::vector<std::u16string_view> describeHostFunctions(Knowledge& knowledge);

}  // namespace check
