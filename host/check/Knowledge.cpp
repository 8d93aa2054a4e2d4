#include "host/check/Knowledge.h"

#include <algorithm>

#include "host/lisp/Machine.h"
#include "host/lisp/Text.h"

namespace check {

namespace {

// The bit of a kind is its row: the word of signatures, and the words by which tools and people know it.
struct Kind {
    std::u16string_view word;
    std::u16string_view people;
};
constexpr Kind KINDS[] = {
    {u"list", u"list box"},   {u"combo", u"drop-down list"}, {u"listctrl", u"list control"},
    {u"tree", u"tree"},       {u"tab", u"tab control"},      {u"grid", u"grid"},
    {u"edit", u"edit box"},   {u"image", u"image tile"},     {u"label", u"label"},
    {u"button", u"button"},   {u"check", u"check box"},      {u"radio", u"radio button"},
    {u"frame", u"group box"},
};

// Sets of kinds that have a name of their own.
struct NamedKinds {
    std::u16string_view word;
    std::u16string_view people;
    std::u16string_view without;  // as the words of signatures
};
constexpr NamedKinds NAMED_KINDS[] = {
    {u"worked", u"tile that a person works", u"tab+label+frame"},
    {u"valued", u"tile with a text, a state or entries", u"tree+tab+grid+frame"},
};

struct NamedRole {
    std::u16string_view word;
    Role role;
};
constexpr NamedRole ROLES[] = {
    {u"dialog", Role::dialog},     {u"action", Role::action},      {u"tile", Role::tile},
    {u"int", Role::integer},       {u"text", Role::text},          {u"mode", Role::mode},
    {u"function", Role::function}, {u"forms", Role::sessionForms},
};

// The arguments of the host's functions that are more than values; their counts are the interpreter's.
constexpr std::u16string_view HOST_SIGNATURES[] = {
    u"apply function:function list",
    u"mapcar function:function [list …]",
    u"sort list before:function",
    u"remove-if test:function list",
    u"remove-if-not test:function list",
    u"some test:function list",
    u"every test:function list",
    u"member-if test:function list",
    u"reduce function:function list [start]",
    u"ui_session name:dialog forms:forms",
    u"ui_click tile [x] [y] [keys]",
    u"ui_hold tile [x] [y] [keys]",
    u"ui_release tile [x] [y] [keys]",
    u"ui_hover tile item [column] [keys]",
    u"ui_dblclick tile [item] [column] [keys]",
    u"ui_rclick tile [item] [column] [keys]",
    u"ui_pick tile item [column] [keys …]",
    u"ui_sweep tile item item [keys]",
    u"ui_expand tile:tree item [clicks:int]",
    u"ui_check tile:tree+listctrl item [clicks:int]",
    u"ui_header tile:listctrl+grid column:int [keys]",
    u"ui_type tile text:text [from:int to:int]",
    u"ui_key key:text [tile]",
    u"ui_char text:text [tile]",
    u"ui_scroll bar:tile part",
    u"ui_wheel tile notches:int",
    u"ui_text tile",
    u"ui_items tile [first:int [count:int]]",
    u"ui_cell tile:grid row:int column:int",
    u"ui_columns tile:listctrl",
    u"ui_look [tile]",
    u"ui_pixel tile x:int y:int",
    u"itoa n:int",
    u"atoi s:text",
    u"atof s:text",
    u"strlen [s:text …]",
    u"substr s:text start:int [length:int]",
    u"strcase s:text [lower]",
    u"wcmatch s:text patterns:text",
    u"strcat [s:text …]",
};

// "tree+grid"
TileKinds kindsOf(std::u16string_view words) {
    TileKinds kinds = ANY_KIND;
    while (!words.empty()) {
        const size_t plus = std::min(words.find(u'+'), words.size());
        for (size_t i = 0; i < std::size(KINDS); ++i)
            if (KINDS[i].word == words.substr(0, plus)) kinds |= TileKinds(1) << i;
        words.remove_prefix(std::min(plus + 1, words.size()));
    }
    return kinds;
}

TileKinds kindsOf(const NamedKinds& named) {
    return ((TileKinds(1) << std::size(KINDS)) - 1) & ~kindsOf(named.without);
}

Argument parseArgument(std::u16string_view name, std::u16string_view what) {
    if (what.empty()) what = name == u"tile" ? name : u"";
    for (const NamedRole& role : ROLES)
        if (role.word == what) return {role.role};
    for (const NamedKinds& named : NAMED_KINDS)
        if (named.word == what) return {Role::tile, kindsOf(named)};
    return what.empty() ? Argument{} : Argument{Role::tile, kindsOf(what)};
}

std::u16string nextWord(std::u16string_view& text) {
    const size_t begin = std::min(text.find_first_not_of(u' '), text.size());
    text.remove_prefix(begin);
    const size_t end = std::min(text.find(u' '), text.size());
    const std::u16string word(text.substr(0, end));
    text.remove_prefix(end);
    return word;
}

}  // namespace

Argument Function::argument(size_t index) const {
    if (index < arguments.size()) return arguments[index];
    return maximum < 0 && !arguments.empty() ? arguments.back() : Argument{};
}

bool Function::isAboutDialogs() const {
    return std::any_of(arguments.begin(), arguments.end(), [](const Argument& argument) {
        return argument.role == Role::tile || argument.role == Role::dialog;
    });
}

Function parseSignature(std::u16string_view text) {
    Function function;
    function.maximum = 0;
    function.name = nextWord(text);
    function.usage = function.name;
    int depth = 0;
    bool isAny = false;
    size_t firstOptional = text.size();
    size_t firstUnsure = text.size();
    for (std::u16string word = nextWord(text); !word.empty(); word = nextWord(text)) {
        const size_t colon = word.find(u':');
        const size_t close = word.find(u']');
        const std::u16string opens = word.starts_with(u"[") ? u"[" : u"";
        const std::u16string closes = close == word.npos ? u"" : word.substr(close);
        const std::u16string bare = word.substr(opens.size(), std::min(close, word.size()) - opens.size());
        const size_t bareColon = bare.find(u':');
        const std::u16string name = bare.substr(0, bareColon);
        function.usage += u' ' + opens + name + closes;
        depth += opens.empty() ? 0 : 1;
        if (name == u"…") {
            isAny = true;
        } else {
            function.arguments.push_back(
                parseArgument(name, colon == word.npos ? std::u16string() : bare.substr(bareColon + 1)));
            function.maximum += 1;
            function.minimum += depth == 0 ? 1 : 0;
            // Where one that may be left out comes before one that may not, its place tells nothing.
            if (depth == 0)
                firstUnsure = std::min(firstUnsure, firstOptional);
            else
                firstOptional = std::min(firstOptional, function.arguments.size() - 1);
        }
        depth -= static_cast<int>(closes.size());
    }
    if (isAny) function.maximum = -1;
    for (size_t i = firstUnsure; i < function.arguments.size(); ++i) function.arguments[i] = {};
    return function;
}

const DialogTile* Dialog::tileOfKey(std::u16string_view key) const {
    std::u16string wanted = lisp::upperCase(key);
    if (wanted == u"ACCEPT") wanted = u"OK";
    const auto at = std::find_if(tiles.begin(), tiles.end(), [&](const DialogTile& tile) {
        return tile.key == wanted || (wanted == u"OK" && tile.key == u"ACCEPT");
    });
    return at == tiles.end() || wanted.empty() ? nullptr : &*at;
}

const DialogTile* Dialog::tileOfId(int id) const {
    const auto at =
        std::find_if(tiles.begin(), tiles.end(), [=](const DialogTile& tile) { return tile.id == id; });
    return at == tiles.end() ? nullptr : &*at;
}

TileKinds kindOfWords(std::u16string_view words) {
    if (words == u"list") return 1;
    if (words == u"frame") words = u"group box";
    if (words.ends_with(u"button") && words != u"radio button") words = u"button";
    for (const std::u16string_view family : {u"edit box", u"drop-down list"})
        if (words.starts_with(family)) words = family;
    for (size_t i = 0; i < std::size(KINDS); ++i)
        if (KINDS[i].people == words) return TileKinds(1) << i;
    return ANY_KIND;
}

std::u16string wordsOfKinds(TileKinds kinds) {
    for (const NamedKinds& named : NAMED_KINDS)
        if (kindsOf(named) == kinds) return std::u16string(named.people);
    std::u16string words;
    for (size_t i = 0; i < std::size(KINDS); ++i) {
        if (!(kinds & TileKinds(1) << i)) continue;
        words += words.empty() ? u"" : kinds >> i == 1 ? u" or " : u", ";
        words += KINDS[i].people;
    }
    return words;
}

void Knowledge::add(Function function) {
    std::u16string name = lisp::upperCase(function.name);
    m_functions.insert_or_assign(std::move(name), std::move(function));
}

bool Knowledge::describe(std::u16string_view signature) {
    Function told = parseSignature(signature);
    const auto at = m_functions.find(lisp::upperCase(told.name));
    if (at == m_functions.end()) return false;
    at->second.usage = std::move(told.usage);
    at->second.arguments = std::move(told.arguments);
    return true;
}

void Knowledge::add(Dialog dialog) {
    std::u16string name = lisp::upperCase(dialog.name);
    m_dialogs.emplace(std::move(name), std::move(dialog));
}

const Dialog* Knowledge::dialog(std::u16string_view name) const {
    const auto at = m_dialogs.find(lisp::upperCase(name));
    return at == m_dialogs.end() ? nullptr : &at->second;
}

void addFunctions(Knowledge& knowledge, const lisp::Machine& lisp) {
    for (const auto& [name, symbol] : lisp.symbols) {
        if (!symbol->value.isFunction()) continue;
        const lisp::Function& defined = *symbol->value.asFunction();
        Function function;
        function.name = symbol->name;
        function.minimum = static_cast<int>(defined.minimum);
        function.maximum = defined.maximum == UINT32_MAX ? -1 : static_cast<int>(defined.maximum);
        knowledge.add(std::move(function));
    }
}

std::vector<std::u16string_view> describeHostFunctions(Knowledge& knowledge) {
    std::vector<std::u16string_view> missed;
    for (const std::u16string_view signature : HOST_SIGNATURES)
        if (!knowledge.describe(signature)) missed.push_back(signature);
    return missed;
}

}  // namespace check
