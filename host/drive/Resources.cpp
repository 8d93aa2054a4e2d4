#include "host/drive/Resources.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

BOOL CALLBACK countOne(HWND, LPARAM total) noexcept {
    ++*reinterpret_cast<int*>(total);
    return TRUE;
}

BOOL CALLBACK countWithChildren(HWND window, LPARAM total) noexcept {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId()) {
        countOne(window, total);
        EnumChildWindows(window, &countOne, total);
    }
    return TRUE;
}

int countWindows() {
    int total = 0;
    EnumWindows(&countWithChildren, reinterpret_cast<LPARAM>(&total));
    return total;
}

// Wine answers 0 to the documented question, but keeps the objects where the process environment block of
// 64-bit processes says.
int countWineGdiObjects() {
    constexpr size_t TABLE_OFFSET = 0xF8;
    constexpr size_t ENTRY_BYTES = 24;
    constexpr size_t KIND_OFFSET = 14;
    constexpr size_t MOST_ENTRIES = 65536;
    const char* environment;
    __asm__("movq %%gs:0x60,%0" : "=r"(environment));
    const char* table = *reinterpret_cast<const char* const*>(environment + TABLE_OFFSET);
    MEMORY_BASIC_INFORMATION memory;
    if (!table || !VirtualQuery(table, &memory, sizeof memory)) return -1;
    const size_t entries = std::min(memory.RegionSize / ENTRY_BYTES, MOST_ENTRIES);
    int total = 0;
    for (size_t i = 0; i < entries; ++i) total += table[i * ENTRY_BYTES + KIND_OFFSET] != 0;
    return total;
}

// The system's list of all handles of all processes.
struct HandleEntry {
    ULONG process;
    BYTE type;
    BYTE flags;
    USHORT handle;
    void* object;
    ACCESS_MASK access;
};

struct HandleList {
    ULONG count;
    HandleEntry entries[1];
};

int countWineKernelHandles() {
    using Query = LONG(WINAPI*)(ULONG kind, void* answer, ULONG bytes, ULONG* needed);
    constexpr ULONG HANDLE_LIST = 16;
    constexpr LONG TOO_SMALL = static_cast<LONG>(0xC0000004);
    const auto query =
        reinterpret_cast<Query>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation"));
    std::vector<std::byte> answer(size_t(1) << 20);
    LONG status;
    ULONG needed = 0;
    while ((status = query(HANDLE_LIST, answer.data(), static_cast<ULONG>(answer.size()), &needed)) ==
           TOO_SMALL) {
        answer.resize(answer.size() * 2);
    }
    if (status != 0) return -1;
    const auto& list = *reinterpret_cast<const HandleList*>(answer.data());
    int total = 0;
    for (ULONG i = 0; i < list.count; ++i) total += list.entries[i].process == GetCurrentProcessId();
    return total;
}

}  // namespace

HeldResources heldResources() {
    const DWORD gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    DWORD kernel = 0;
    GetProcessHandleCount(GetCurrentProcess(), &kernel);
    return {countWindows(), gdi ? static_cast<int>(gdi) : countWineGdiObjects(),
            kernel ? static_cast<int>(kernel) : countWineKernelHandles()};
}
