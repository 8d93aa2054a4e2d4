// SQL as the plug-in and its programs write it, made into what a database takes. Portable.
#pragma once

#include <string>
#include <string_view>

// How a database reads SQL.
struct SqlDialect {
    // Around a name; empty where the database takes square brackets itself, or no quotes at all.
    std::wstring quote;
    // A backslash in a literal takes the next character as it is, # begins a comment, and -- only in front of
    // a blank.
    bool mysql = false;
    // $tag$ literals, E'\'' literals and subscripts, as in a[1] and text[].
    bool postgres = false;
};

// The dialect of the product of that name, which quotes names so.
SqlDialect dialectOf(std::wstring_view product, std::wstring_view quote);

// `sql` without an empty order at its end, which no database takes.
std::wstring_view withoutEmptyOrder(std::wstring_view sql);

// Whether `sql` is a statement that begins a transaction, as BEGIN and START TRANSACTION are, and no block of
// statements.
bool beginsTransaction(std::wstring_view sql);

// `sql` with each [name] quoted as the dialect has it. A name ends at the first closing bracket. What stands
// in literals, quoted names and comments stays, and so does a bracket that nothing closes.
std::wstring withQuotedNames(std::wstring_view sql, const SqlDialect& dialect);
