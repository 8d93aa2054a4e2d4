// The least that a program of the platform does before its first dialog: bare_start MODULE TEMPLATE makes a
// main window and before it the dialog, prints a line when both are painted and idle, and ends.
#include <windows.h>

#include <cstdio>
#include <cwchar>

namespace {

constexpr wchar_t CLASS_NAME[] = L"BareStart";

LRESULT CALLBACK frameProcedure(HWND window, UINT message, WPARAM w, LPARAM l) {
    if (message != WM_ENTERIDLE) return DefWindowProcW(window, message, w, l);
    const auto dialog = reinterpret_cast<HWND>(l);
    RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    std::puts("shown");
    std::fflush(stdout);
    PostMessageW(dialog, WM_CLOSE, 0, 0);
    return 0;
}

INT_PTR CALLBACK dialogProcedure(HWND dialog, UINT message, WPARAM, LPARAM) {
    if (message == WM_CLOSE) EndDialog(dialog, 0);
    return message == WM_INITDIALOG;
}

HWND makeFrame() {
    WNDCLASSW frame = {};
    frame.lpfnWndProc = &frameProcedure;
    frame.hInstance = GetModuleHandleW(nullptr);
    frame.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1);
    frame.lpszClassName = CLASS_NAME;
    RegisterClassW(&frame);
    return CreateWindowExW(0, CLASS_NAME, L"Bare", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CW_USEDEFAULT,
                           CW_USEDEFAULT, 960, 640, nullptr, nullptr, frame.hInstance, nullptr);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 3) return 2;
    const HMODULE module = LoadLibraryExW(arguments[1], nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const auto number = static_cast<WORD>(std::wcstol(arguments[2], nullptr, 10));
    const INT_PTR ended = DialogBoxParamW(module, MAKEINTRESOURCEW(number), makeFrame(), &dialogProcedure, 0);
    return ended < 0 ? 1 : 0;
}
