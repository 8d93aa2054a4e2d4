// Which database a person or a program means. Portable.
//
//     parts.sqlite                                  a file
//     odbc:Driver={PostgreSQL Unicode};Database=x   what a connect string of ODBC leads to
#pragma once

#include <string>
#include <string_view>

struct DataChoice {
    bool isOdbc = false;
    std::wstring target;  // path or connect string
    // For people: without what is secret.
    std::wstring shown;
    std::wstring error;  // what is wrong with the text; empty if nothing
};

DataChoice parseDataChoice(std::wstring_view text);
