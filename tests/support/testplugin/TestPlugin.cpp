// A plug-in for tests of the host: functions that do one thing with the interface each, some of them wrong.
#include <windows.h>

#include <commctrl.h>

#include <cstring>
#include <stdexcept>
#include <string>

#include "src/platform/host/HostLisp.h"
#include "src/platform/host/HostPlugin.h"
#include "src/platform/host/HostServices.h"
#include "tests/support/testplugin/TestDialog.h"

namespace {

HMODULE g_module;
std::wstring g_messages;

int32_t echo() {
    hostRetList(hostGetArgs());
    return RESULT_SET;
}

int32_t value() {
    hostRetVal(hostGetArgs());
    return RESULT_SET;
}

int32_t noValue() {
    hostRetVoid();
    return RESULT_SET;
}

int32_t noResult() { return RESULT_SET; }

int32_t twoResults() {
    hostRetInt(1);
    hostRetStr(L"the last one");
    return RESULT_SET;
}

int32_t throwError() { throw std::runtime_error("out of wire"); }

int32_t throwNumber() { throw 5; }

int32_t crash() {
    static int* volatile nowhere = nullptr;
    *nowhere = 1;
    return RESULT_SET;
}

// Writes over the end of what lies on its stack.
int32_t smash() {
    // Which function and how many bytes the compiler doesn't know.
    void* (*volatile fill)(void*, int, size_t) = &std::memset;
    volatile size_t length = 64;
    char bytes[16];
    fill(bytes, 1, length);
    return RESULT_SET;
}

int32_t code() { return hostRetInt(hostGetFunCode()) == HOST_NORMAL ? RESULT_SET : 0; }

// Calls the function that the arguments name; gives (status result-or-nil code-of-this-function).
int32_t invoke() {
    HostValue* result = nullptr;
    const int status = hostInvoke(hostGetArgs(), &result);
    HostValue* answer = hostBuildList(HV_LONG, status, HV_SHORT, hostGetFunCode(), 0);
    answer->next->next = result;
    hostRetList(answer);
    hostRelRb(answer);
    return RESULT_SET;
}

// Sets the symbol that the first argument names to the others.
int32_t put() {
    const HostValue* name = hostGetArgs();
    const int status = hostPutSym(name->value.stringValue, name->next);
    hostRetInt(status);
    return RESULT_SET;
}

int32_t dialog() {
    hostRetInt(runTestDialog(g_module, hostGetMainFrame(), hostGetArgs() != nullptr));
    return RESULT_SET;
}

// Asks without an owner, and gives the button.
int32_t ask() {
    hostRetInt(MessageBoxW(nullptr, hostGetArgs()->value.stringValue, L"Question", MB_YESNO));
    return RESULT_SET;
}

int32_t say() {
    hostRetInt(MessageBoxW(GetActiveWindow(), hostGetArgs()->value.stringValue, L"Message", MB_OK));
    return RESULT_SET;
}

int32_t print() {
    hostPrintf(L"%s has %d of %c\n", L"gr\u00FCn", 3, L'x');
    hostRetVoid();
    return RESULT_SET;
}

int32_t messages() {
    hostRetStr(g_messages.c_str());
    return RESULT_SET;
}

// Types a text on the main frame's command line, where there is one, and then presses the key; gives what the
// line and the output show.
int32_t command() {
    const HostValue* text = hostGetArgs();
    const HWND output = FindWindowExW(hostGetMainFrame(), nullptr, L"Edit", nullptr);
    const HWND line = FindWindowExW(hostGetMainFrame(), output, L"Edit", nullptr);
    if (*text->value.stringValue) {
        SendMessageW(line, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text->value.stringValue));
    }
    SendMessageW(line, WM_KEYDOWN, text->next->value.shortValue, 1);
    wchar_t shown[2][4096] = {};
    GetWindowTextW(line, shown[0], ARRAYSIZE(shown[0]));
    GetWindowTextW(output, shown[1], ARRAYSIZE(shown[1]));
    HostValue* both = hostBuildList(HV_STRING, shown[0], HV_STRING, shown[1], 0);
    hostRetList(both);
    hostRelRb(both);
    return RESULT_SET;
}

// Writes a text into a file: name, text, whether over another file, and whether with a byte order mark.
int32_t write() {
    const HostValue* name = hostGetArgs();
    const HostValue* overwrites = name->next->next;
    hostRetInt(HostMemFile::createTextFile(name->value.stringValue, name->next->value.stringValue,
                                           overwrites->type == HV_TRUE, overwrites->next->type == HV_TRUE));
    return RESULT_SET;
}

// Sends a message to the module of that name as the host does; gives its answer.
int32_t send() {
    const HostValue* module = hostGetArgs();
    const auto entry = reinterpret_cast<int32_t (*)(int32_t, void*)>(
        GetProcAddress(GetModuleHandleW(module->value.stringValue), PLUGIN_ENTRY_POINT));
    hostRetInt(entry(module->next->value.shortValue, nullptr));
    return RESULT_SET;
}

// Passes on to the main frame that the loop of a dialog that it owns is idle, as dialogs do.
LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM w, LPARAM l) noexcept {
    if (message == WM_ENTERIDLE) return SendMessageW(hostGetMainFrame(), message, w, l);
    return DefWindowProcW(window, message, w, l);
}

// Opens a window of that class and title, and makes it the active one; without arguments it goes again.
int32_t window() {
    static HWND open = nullptr;
    const HostValue* className = hostGetArgs();
    if (open) DestroyWindow(open);
    open = nullptr;
    hostRetVoid();
    if (!className) return RESULT_SET;
    WNDCLASSW kind = {};
    kind.lpfnWndProc = &windowProcedure;
    kind.lpszClassName = className->value.stringValue;
    RegisterClassW(&kind);
    open = CreateWindowW(kind.lpszClassName, className->next->value.stringValue, WS_POPUP | WS_VISIBLE, 0, 0,
                         9, 9, hostGetMainFrame(), nullptr, nullptr, nullptr);
    SetActiveWindow(open);
    return RESULT_SET;
}

// Adds a tab to the tab control of that id in the dialog in front.
int32_t addBareTab() {
    const HWND dialog = GetLastActivePopup(hostGetMainFrame());
    TCITEMW item = {};
    SendDlgItemMessageW(dialog, hostGetArgs()->value.shortValue, TCM_INSERTITEMW, 0,
                        reinterpret_cast<LPARAM>(&item));
    hostRetVoid();
    return RESULT_SET;
}

// Moves the dialog in front.
int32_t move() {
    const HostValue* x = hostGetArgs();
    SetWindowPos(GetLastActivePopup(hostGetMainFrame()), nullptr, x->value.shortValue,
                 x->next->value.shortValue, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    hostRetVoid();
    return RESULT_SET;
}

// Takes the focus away from all windows.
int32_t unfocus() {
    SetFocus(nullptr);
    hostRetVoid();
    return RESULT_SET;
}

struct Row {
    const wchar_t* name;
    HostLispFunction handler;
};

constexpr Row ROWS[] = {
    {L"t_echo", &echo},
    {L"t_value", &value},
    {L"t_void", &noValue},
    {L"t_noresult", &noResult},
    {L"t_two", &twoResults},
    {L"t_throw", &throwError},
    {L"t_throw5", &throwNumber},
    {L"t_code", &code},
    {L"t_invoke", &invoke},
    {L"t_put", &put},
    {L"t_dialog", &dialog},
    {L"t_ask", &ask},
    {L"t_say", &say},
    {L"t_print", &print},
    {L"t_messages", &messages},
    {L"t_command", &command},
    {L"t_send", &send},
    {L"t_window", &window},
    {L"t_tab", &addBareTab},
    {L"t_move", &move},
    {L"t_unfocus", &unfocus},
    {L"t_crash", &crash},
    {L"t_smash", &smash},
    {L"t_write", &write},
};
constexpr int COUNT = ARRAYSIZE(ROWS);

// The host calls this one by message 5, since no handler is bound to it.
constexpr wchar_t UNBOUND[] = L"t_unbound";
constexpr int UNBOUND_CODE = COUNT;

void init() {
    HostService* linker = hostSysRegistry()->at(L"DynamicLinker");
    if (!linker || !linker->isKindOf(HostDynamicLinker::className)) throw std::runtime_error("no linker");
    static_cast<HostDynamicLinker*>(linker)->allowUnload(g_module);
    static_cast<HostDynamicLinker*>(linker)->worksWithSeveralDocuments(g_module);
}

void define() {
    for (int i = 0; i < COUNT; ++i) {
        hostDefun(ROWS[i].name, i);
        hostRegFunc(ROWS[i].handler, i);
    }
    hostDefun(UNBOUND, UNBOUND_CODE);
}

}  // namespace

extern "C" {

__declspec(dllexport) int32_t pluginEntryPoint(int32_t message, void*) {
    g_messages += std::to_wstring(message);
    if (message == PLUGIN_INIT) init();
    if (message == PLUGIN_LOAD_DOCUMENT) define();
    if (message == PLUGIN_UNLOAD_DOCUMENT) {
        for (int i = 0; i < COUNT; ++i) hostUndef(ROWS[i].name, i);
    }
    if (message == PLUGIN_INVOKE_FUNCTION && hostGetFunCode() == UNBOUND_CODE) hostRetStr(L"by message");
    return 0;
}

__declspec(dllexport) uint32_t pluginGetApiVersion() { return HOST_API_VERSION; }

__declspec(dllexport) HWND pluginFindWindow(const wchar_t* dialog, const wchar_t* key, int32_t id) {
    return findInTestDialog(dialog, key, id);
}

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH) g_module = instance;
    return TRUE;
}
}
