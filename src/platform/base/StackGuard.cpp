// What the compiler's guard of the stack needs: its secret number, and what happens when a function overwrote
// it. The compiler's own library draws the number from the platform's cryptography, whose modules take Wine
// tens of milliseconds to load, for each of ours anew.
#include <windows.h>

#include <ntsecapi.h>

#include <cstdint>

extern "C" {

uintptr_t __stack_chk_guard;

// Tells the process's filter of crashes and ends the process. No frame is looked at: the caller's are spoilt.
[[noreturn]] void __stack_chk_fail() {
    CONTEXT context = {};
    RtlCaptureContext(&context);
    EXCEPTION_RECORD record = {};
    record.ExceptionCode = static_cast<DWORD>(STATUS_STACK_BUFFER_OVERRUN);
    record.ExceptionFlags = EXCEPTION_NONCONTINUABLE;
    record.ExceptionAddress = __builtin_return_address(0);
    EXCEPTION_POINTERS pointers = {&record, &context};
    UnhandledExceptionFilter(&pointers);
    TerminateProcess(GetCurrentProcess(), record.ExceptionCode);
    __builtin_unreachable();
}

}  // extern "C"

namespace {

// Before any other constructor: no function that checks the number may be running when it changes.
[[gnu::constructor(101), gnu::no_stack_protector]] void drawGuard() {
    uintptr_t drawn = 0;
    RtlGenRandom(&drawn, sizeof drawn);
    // A text that runs over its end stops at the byte of zero.
    __stack_chk_guard = (drawn ^ reinterpret_cast<uintptr_t>(&drawn)) & ~uintptr_t{0xFF};
}

}  // namespace
