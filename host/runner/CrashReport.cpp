#include "host/runner/CrashReport.h"

#include <windows.h>

#include <cstdint>
#include <cwchar>
#include <exception>
#include <filesystem>
#include <string>

#include "host/runner/WhereItStood.h"
#include "host/services/Host.h"

namespace {

constexpr UINT CRASHED = 5;

DWORD g_lispThread;

std::wstring hexText(uintptr_t number) {
    wchar_t text[2 + 16 + 1];
    std::swprintf(text, ARRAYSIZE(text), L"0x%llx", static_cast<unsigned long long>(number));
    return text;
}

// As `WexDialogs.pgx+0x1234`.
std::wstring placeInModule(const void* address) {
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH] = {};
    if (!GetModuleHandleExW(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            static_cast<const wchar_t*>(address), &module) ||
        !GetModuleFileNameW(module, path, ARRAYSIZE(path))) {
        return hexText(reinterpret_cast<uintptr_t>(address));
    }
    const auto offset = reinterpret_cast<uintptr_t>(address) - reinterpret_cast<uintptr_t>(module);
    return std::filesystem::path(path).filename().wstring() + L"+" + hexText(offset);
}

[[noreturn]] void endWith(const std::wstring& fault) {
    // A second fault, in the report itself, ends the process by the platform's own way.
    SetUnhandledExceptionFilter(nullptr);
    host().console().error(L"wexhost crashed: " + fault + whereItStood(g_lispThread));
    TerminateProcess(GetCurrentProcess(), CRASHED);
    __builtin_unreachable();
}

LONG CALLBACK onFault(EXCEPTION_POINTERS* fault) {
    const EXCEPTION_RECORD& record = *fault->ExceptionRecord;
    endWith(L"exception " + hexText(record.ExceptionCode) + L" in " + placeInModule(record.ExceptionAddress));
}

[[noreturn]] void onUncaught() { endWith(L"an exception that nobody caught"); }

}  // namespace

void reportCrashes() {
    g_lispThread = GetCurrentThreadId();
    SetUnhandledExceptionFilter(&onFault);
    std::set_terminate(&onUncaught);
}
