// Warnings to the author of a Lisp program: what a call couldn't do, though it goes on without a word as
// programs depend on. Asked for only where a call fails anyway, so that they cost nothing where nothing is
// wrong.
#pragma once

#include <span>

#include "src/platform/base/CString.h"

// One of a kind is told once for a place in the program.
enum WarningKind : int32_t {
    WARN_NO_DIALOG,
    WARN_UNKNOWN_DIALOG,
    WARN_NO_TEMPLATE,
    WARN_NOT_NOW,
    WARN_UNKNOWN_TILE,
    WARN_OTHER_KIND,
    WARN_NOT_FOUND,
    WARN_OUTSIDE,
    WARN_DATABASE,
    WARN_NO_EFFECT,
    WARN_UNUSED_ARGUMENT,
    WARN_ARGUMENT = 100,  // and the number of the argument added to it
};

// Whether the host tells a warning of that kind, of the call at hand. False in a host that knows no warnings.
bool isHeard(int32_t kind);
void tellWarning(int32_t kind, const CString& words);
// Where a name was wrong: that name, and those that it could have been.
void tellWarning(int32_t kind, const CString& words, const CString& wanted,
                 std::span<const CString> candidates);

// Tells what `words` makes, which is called only where somebody hears it.
template <class Words>
void warn(int32_t kind, Words words) {
    if (isHeard(kind)) tellWarning(kind, words());
}
inline void warn(int32_t kind, const wchar_t* words) {
    if (isHeard(kind)) tellWarning(kind, words);
}

// A name as it stands in a warning, on one line.
CString quoted(const CString& name);
// "there is no mode 7"
CString noSuch(const wchar_t* what, int number);
