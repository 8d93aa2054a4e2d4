#include "src/platform/mfc/WindowClass.h"

#include "src/platform/mfc/ModuleState.h"

WindowClass::WindowClass(const wchar_t* name, HBRUSH background, UINT style) {
    WNDCLASSW request{};
    // Global: the windows are created with the instance of the module that holds the template.
    request.style = style | CS_GLOBALCLASS | CS_DBLCLKS;
    request.lpfnWndProc = &DefWindowProcW;
    request.hInstance = AfxGetModuleState()->m_hCurrentInstanceHandle;
    request.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    request.hbrBackground = background;
    request.lpszClassName = name;
    m_atom = RegisterClassW(&request);
}

WindowClass::~WindowClass() {
    if (m_atom) UnregisterClassW(MAKEINTATOM(m_atom), AfxGetModuleState()->m_hCurrentInstanceHandle);
}
