// The host's Lisp as the plug-in reaches it: names, arguments, results, symbols, calls.
//
// All memory of chains and their strings comes from the host (hostNewRb, hostNewString, hostAlloc) and goes
// back to it (hostRelRb), so that the two modules may have different run-times.
#pragma once

#include <cstddef>

#include "src/platform/host/HostApi.h"
#include "src/platform/host/HostValue.h"

using HostLispFunction = int32_t (*)();

// Makes `name` a Lisp function of the current document, under `code`. HOST_NORMAL, or HOST_ERROR where no
// document is open or the name is not a symbol's.
HOST_API int hostDefun(const wchar_t* name, int code);
// Binds `handler` to `code`: the host then calls it directly instead of sending message 5.
HOST_API int hostRegFunc(HostLispFunction handler, int code);
// Takes the name back out of the current document.
HOST_API int hostUndef(const wchar_t* name, int code);
// The code of the Lisp function that is being called; -1 outside of a call.
HOST_API int hostGetFunCode();

// The arguments of the call at hand, or null when it has none. The chain belongs to the host and lives until
// the call ends. A list arrives flat between HV_LIST_BEGIN and HV_LIST_END, nested ones too.
HOST_API HostValue* hostGetArgs();

// Each sets the result of the call; the last one holds. Without any it is nil, or no value after RESULT_SET.
HOST_API int hostRetVoid();
HOST_API int hostRetNil();
HOST_API int hostRetT();
HOST_API int hostRetInt(int32_t number);
HOST_API int hostRetStr(const wchar_t* text);
// The elements of `chain` as a list (no begin and end nodes around the whole). The chain remains the
// caller's.
HOST_API int hostRetList(const HostValue* chain);
// The value of one node. The node remains the caller's.
HOST_API int hostRetVal(const HostValue* node);

// A chain from pairs of type code and value: HV_STRING takes const wchar_t*, HV_SHORT and HV_LONG int, reals
// double, HV_POINT const double*; codes without payload take none. HV_NONE or 0 ends it. Null when the first
// code ends it.
HOST_API HostValue* hostBuildList(int type, ...);
// One node of that type, all else zero.
HOST_API HostValue* hostNewRb(int type);
// Frees a chain with its strings. Null is allowed.
HOST_API void hostRelRb(HostValue* chain);
// A copy of `source` that hostRelRb may free, also given as `*destination`.
HOST_API wchar_t* hostNewString(const wchar_t* source, wchar_t** destination);
// Memory for a node's string, freed by hostRelRb with its node.
HOST_API void* hostAlloc(size_t bytes);

// Sets a Lisp symbol to a copy of the value: one node gives that value, several nodes (or a chain that opens
// with HV_LIST_BEGIN) a list. Runs no Lisp. HOST_NORMAL or HOST_ERROR.
HOST_API int hostPutSym(const wchar_t* name, const HostValue* chain);
// Calls the Lisp function named by the first node (a string; letter case does not count) with the other nodes
// as arguments. `*result` must be null on entry; a chain left there is the caller's to release. HOST_ERROR
// where there is no such function or the call ended in a Lisp error, which the host reports by itself.
HOST_API int hostInvoke(const HostValue* chain, HostValue** result);
