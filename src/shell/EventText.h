// The Lisp text that binds actions to tiles: what goes into a dialog's event file, and the file's path.
// Portable.
#pragma once

#include <string>
#include <string_view>

// The two lines and the empty line with which an event file begins.
std::wstring eventFileHeader();

// The name of the Lisp function behind an action. `suffix` is the dialog's name in lower case followed by the
// key as the program spelt it, or by "OnInit" or "OnSize".
std::wstring actionFunctionName(std::wstring_view suffix);

// The definition of that function around the program's own text, which is taken as it stands.
std::wstring actionDefinition(std::wstring_view suffix, std::wstring_view text);

// The path of an event file. `tempFolder` ends with a backslash.
std::wstring eventFilePathIn(std::wstring_view tempFolder, std::wstring_view dialogName);
