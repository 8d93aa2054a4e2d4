// A plug-in that measures for product.lsp: a clock, clicks without a hand, and the same work on the bare
// platform.
#include <windows.h>

#include <cstdio>
#include <cwchar>
#include <iterator>

#include "src/platform/host/HostLisp.h"
#include "src/platform/host/HostPlugin.h"
#include "src/platform/host/HostServices.h"

namespace {

double now() {
    LARGE_INTEGER ticks, frequency;
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(ticks.QuadPart) * 1000.0 / static_cast<double>(frequency.QuadPart);
}

int32_t giveReal(double number) {
    HostValue* node = hostBuildList(HV_REAL, number, HV_NONE);
    hostRetVal(node);
    hostRelRb(node);
    return RESULT_SET;
}

int argument(int position) {
    const HostValue* node = hostGetArgs();
    for (; node && position > 0; --position) node = node->next;
    return node ? node->value.shortValue : 0;
}

HWND runningDialog() { return GetLastActivePopup(hostGetMainFrame()); }

// (bench_now) -> milliseconds since some moment
int32_t clock() { return giveReal(now()); }

// (bench_click id n) -> milliseconds for n clicks of a button of the running dialog
int32_t click() {
    const HWND dialog = runningDialog();
    const int id = argument(0);
    const auto button = reinterpret_cast<LPARAM>(GetDlgItem(dialog, id));
    const double begun = now();
    for (int i = argument(1); i > 0; --i)
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), button);
    return giveReal(now() - begun);
}

// (bench_bare_set id n) -> milliseconds for n texts that the platform sets into a box of the running dialog
int32_t bareSet() {
    const HWND edit = GetDlgItem(runningDialog(), argument(0));
    wchar_t text[16];
    const double begun = now();
    for (int i = argument(1); i > 0; --i) {
        std::swprintf(text, std::size(text), L"%d", i);
        SetWindowTextW(edit, text);
    }
    return giveReal(now() - begun);
}

// (bench_bare_lookup id) -> milliseconds for loading all strings of the plug-in from 1500 up to that id
int32_t bareLookup() {
    const HMODULE plugin = GetModuleHandleW(L"WexDialogs.pgx");
    wchar_t text[1500];
    const double begun = now();
    for (int id = 1500; id <= argument(0); ++id)
        LoadStringW(plugin, static_cast<UINT>(id), text, std::size(text));
    return giveReal(now() - begun);
}

constexpr struct {
    const wchar_t* name;
    HostLispFunction function;
} FUNCTIONS[] = {
    {L"bench_now", &clock},
    {L"bench_click", &click},
    {L"bench_bare_set", &bareSet},
    {L"bench_bare_lookup", &bareLookup},
};

}  // namespace

extern "C" __declspec(dllexport) uint32_t pluginGetApiVersion() { return HOST_API_VERSION; }

extern "C" __declspec(dllexport) int32_t pluginEntryPoint(int32_t message, void*) {
    if (message != PLUGIN_LOAD_DOCUMENT) return 0;
    int code = 0;
    for (const auto& [name, function] : FUNCTIONS) {
        hostDefun(name, code);
        hostRegFunc(function, code++);
    }
    return 0;
}
