#include "src/pictures/FaultGuard.h"

#include <windows.h>

namespace {

// Where a broken-off work goes on, as the compiler's own jump wants it.
void* g_way[5];
// The thread whose faults are caught; 0 for none.
DWORD g_thread = 0;

[[noreturn]] void leave() { __builtin_longjmp(g_way, 1); }

// The faulty instruction isn't tried again; the thread goes on in leave() instead, with its stack as a call
// would have left it.
LONG CALLBACK onFault(EXCEPTION_POINTERS* fault) {
    const bool isCaught = fault->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION &&
                          g_thread == GetCurrentThreadId();
    if (!isCaught) return EXCEPTION_CONTINUE_SEARCH;
    g_thread = 0;
    constexpr DWORD64 ALIGNMENT = 16, RETURN_ADDRESS = 8;
    fault->ContextRecord->Rsp = fault->ContextRecord->Rsp / ALIGNMENT * ALIGNMENT - RETURN_ADDRESS;
    fault->ContextRecord->Rip = reinterpret_cast<DWORD64>(&leave);
    return EXCEPTION_CONTINUE_EXECUTION;
}

// Apart, so that nothing of the caller lives in a register across the jump.
[[gnu::noinline]] bool doneWhole(const std::function<void()>& work) {
    if (__builtin_setjmp(g_way) != 0) return false;
    g_thread = GetCurrentThreadId();
    work();
    g_thread = 0;
    return true;
}

}  // namespace

bool withoutFault(const std::function<void()>& work) {
    void* const handler = AddVectoredExceptionHandler(TRUE, &onFault);
    const bool isWhole = doneWhole(work);
    RemoveVectoredExceptionHandler(handler);
    return isWhole;
}
