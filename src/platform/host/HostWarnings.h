// What the author of a Lisp program should hear: a call that can't do what it says. Optional: a host need not
// have this export, and the plug-in looks it up by name when it first has something to say.
#pragma once

#include <cstddef>
#include <cstdint>

#include "src/platform/host/HostApi.h"

constexpr const char* HOST_WARN = "hostWarn";

// Tells a warning about the Lisp call at hand, to which the host adds the place in the program and the
// function. One of a kind, a number of the plug-in's own choice, is told once for a place. Where a name was
// wrong, `wanted` is that name, otherwise null, and `candidates` are `count` names that it could have been.
// HOST_NORMAL where it was told. With null `words` nothing is: HOST_NORMAL then says that a warning of that
// kind would be told here, and anything else spares the plug-in making the words.
using HostWarn = int (*)(int32_t kind, const wchar_t* words, const wchar_t* wanted,
                         const wchar_t* const* candidates, size_t count);

#ifdef HOST_BUILDS_API
HOST_API int hostWarn(int32_t kind, const wchar_t* words, const wchar_t* wanted,
                      const wchar_t* const* candidates, size_t count);
#endif
