// The Lisp text that binds actions to tiles: what goes into a dialog's event file, and the file's path.
// Portable.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// The two lines and the empty line with which an event file begins.
std::wstring eventFileHeader();

// The name of the Lisp function behind an action. `suffix` is the dialog's name in lower case followed by the
// key as the program spelt it, or by "OnInit" or "OnSize".
std::wstring actionFunctionName(std::wstring_view suffix);

// The definition of that function around the program's own text, which is taken as it stands.
std::wstring actionDefinition(std::wstring_view suffix, std::wstring_view text);

// Where in the text of an event file the last definition begins before `end`; npos where none does. Looks for
// the text before a name alone, which an action's own text may hold too.
size_t lastDefinition(std::wstring_view file, size_t end);

// The suffix of the definition that begins at `at`; nothing where its name has no end.
std::optional<std::wstring_view> definitionSuffix(std::wstring_view file, size_t at);

// The path of an event file. `tempFolder` ends with a backslash.
std::wstring eventFilePathIn(std::wstring_view tempFolder, std::wstring_view dialogName);
