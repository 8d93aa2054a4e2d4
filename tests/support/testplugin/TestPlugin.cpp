// A plug-in for tests of the host: functions that do one thing with the interface each, some of them wrong.
#include <windows.h>

#include <commctrl.h>

#include <cstring>
#include <stdexcept>
#include <string>

#include "src/platform/host/HostServices.h"
#include "tests/support/LispTable.h"
#include "tests/support/testplugin/TestDialog.h"

namespace {

HMODULE g_module;
std::wstring g_messages;

// Of the first argument.
const wchar_t* text() { return hostGetArgs()->value.stringValue; }

void echo() { hostRetList(hostGetArgs()); }
void value() { hostRetVal(hostGetArgs()); }
void noValue() { hostRetVoid(); }
void noResult() {}
void twoResults() {
    hostRetInt(1);
    hostRetStr(L"the last one");
}
void throwError() { throw std::runtime_error("out of wire"); }
void throwNumber() { throw 5; }
void code() { hostRetInt(hostGetFunCode()); }
void messages() { hostRetStr(g_messages.c_str()); }
void dialog() { hostRetInt(runTestDialog(g_module, hostGetMainFrame(), hostGetArgs() != nullptr)); }
// Asks without an owner, and gives the button.
void ask() { hostRetInt(MessageBoxW(nullptr, text(), L"Question", MB_YESNO)); }
void say() { hostRetInt(MessageBoxW(GetActiveWindow(), text(), L"Message", MB_OK)); }
// Takes the focus away from all windows.
void unfocus() { SetFocus(nullptr); }

void crash() {
    static int* volatile nowhere = nullptr;
    *nowhere = 1;
}

// Writes over the end of what lies on its stack.
void smash() {
    // Which function and how many bytes the compiler doesn't know.
    void* (*volatile fill)(void*, int, size_t) = &std::memset;
    volatile size_t length = 64;
    char bytes[16];
    fill(bytes, 1, length);
}

// Calls the function that the arguments name; gives (status result-or-nil code-of-this-function).
void invoke() {
    HostValue* result = nullptr;
    const int status = hostInvoke(hostGetArgs(), &result);
    HostValue* answer = hostBuildList(HV_LONG, status, HV_SHORT, hostGetFunCode(), 0);
    answer->next->next = result;
    hostRetList(answer);
    hostRelRb(answer);
}

// Sets the symbol that the first argument names to the others.
void put() {
    const HostValue* name = hostGetArgs();
    const int status = hostPutSym(name->value.stringValue, name->next);
    hostRetInt(status);
}

void print() { hostPrintf(L"%s has %d of %c\n", L"gr\u00FCn", 3, L'x'); }

// Writes a text into a file: name, text, whether over another file, and whether with a byte order mark.
void write() {
    const HostValue* name = hostGetArgs();
    const HostValue* overwrites = name->next->next;
    hostRetInt(HostMemFile::createTextFile(name->value.stringValue, name->next->value.stringValue,
                                           overwrites->type == HV_TRUE, overwrites->next->type == HV_TRUE));
}

// Sends a message to the module of that name as the host does; gives its answer.
void send() {
    const HostValue* module = hostGetArgs();
    const auto entry = reinterpret_cast<int32_t (*)(int32_t, void*)>(
        GetProcAddress(GetModuleHandleW(module->value.stringValue), PLUGIN_ENTRY_POINT));
    hostRetInt(entry(module->next->value.shortValue, nullptr));
}

// Passes on to the main frame that the loop of a dialog that it owns is idle, as dialogs do.
LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM w, LPARAM l) noexcept {
    if (message == WM_ENTERIDLE) return SendMessageW(hostGetMainFrame(), message, w, l);
    return DefWindowProcW(window, message, w, l);
}

// Opens a window of that class and title, and makes it the active one; without arguments it goes again.
void window() {
    static HWND open = nullptr;
    const HostValue* className = hostGetArgs();
    if (open) DestroyWindow(open);
    open = nullptr;
    if (!className) return;
    WNDCLASSW kind = {};
    kind.lpfnWndProc = &windowProcedure;
    kind.lpszClassName = className->value.stringValue;
    RegisterClassW(&kind);
    open = CreateWindowW(kind.lpszClassName, className->next->value.stringValue, WS_POPUP | WS_VISIBLE, 0, 0,
                         9, 9, hostGetMainFrame(), nullptr, nullptr, nullptr);
    SetActiveWindow(open);
}

// Adds a tab to the tab control of that id in the dialog in front.
void addBareTab() {
    const HWND dialog = GetLastActivePopup(hostGetMainFrame());
    TCITEMW item = {};
    SendDlgItemMessageW(dialog, hostGetArgs()->value.shortValue, TCM_INSERTITEMW, 0,
                        reinterpret_cast<LPARAM>(&item));
}

// Moves the dialog in front.
void move() {
    const HostValue* x = hostGetArgs();
    SetWindowPos(GetLastActivePopup(hostGetMainFrame()), nullptr, x->value.shortValue,
                 x->next->value.shortValue, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

constexpr LispRow ROWS[] = {
    {L"t_echo", &entry<echo>},
    {L"t_value", &entry<value>},
    {L"t_void", &entry<noValue>},
    {L"t_noresult", &entry<noResult>},
    {L"t_two", &entry<twoResults>},
    {L"t_throw", &entry<throwError>},
    {L"t_throw5", &entry<throwNumber>},
    {L"t_code", &entry<code>},
    {L"t_invoke", &entry<invoke>},
    {L"t_put", &entry<put>},
    {L"t_dialog", &entry<dialog>},
    {L"t_ask", &entry<ask>},
    {L"t_say", &entry<say>},
    {L"t_print", &entry<print>},
    {L"t_messages", &entry<messages>},
    {L"t_send", &entry<send>},
    {L"t_window", &entry<window>},
    {L"t_tab", &entry<addBareTab>},
    {L"t_move", &entry<move>},
    {L"t_unfocus", &entry<unfocus>},
    {L"t_crash", &entry<crash>},
    {L"t_smash", &entry<smash>},
    {L"t_write", &entry<write>},
};
// The host calls this one by message 5, since no handler is bound to it.
constexpr wchar_t UNBOUND[] = L"t_unbound";
constexpr int UNBOUND_CODE = ARRAYSIZE(ROWS);

void init() {
    HostService* linker = hostSysRegistry()->at(L"DynamicLinker");
    if (!linker || !linker->isKindOf(HostDynamicLinker::className)) throw std::runtime_error("no linker");
    static_cast<HostDynamicLinker*>(linker)->allowUnload(g_module);
    static_cast<HostDynamicLinker*>(linker)->worksWithSeveralDocuments(g_module);
}

}  // namespace

extern "C" {

__declspec(dllexport) int32_t pluginEntryPoint(int32_t message, void*) {
    g_messages += std::to_wstring(message);
    if (message == PLUGIN_INIT) init();
    serve(ROWS, message);
    if (message == PLUGIN_LOAD_DOCUMENT) hostDefun(UNBOUND, UNBOUND_CODE);
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
