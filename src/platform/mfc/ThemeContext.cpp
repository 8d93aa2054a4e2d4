#include "src/platform/mfc/ThemeContext.h"

#include "src/platform/mfc/ModuleState.h"

namespace {

constexpr int MANIFEST_RESOURCE = 2;

HANDLE createContext() {
    const HMODULE module = AfxGetModuleState()->m_hCurrentInstanceHandle;
    if (!module) return INVALID_HANDLE_VALUE;
    ACTCTXW request = {sizeof request};
    request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    request.hModule = module;
    request.lpResourceName = MAKEINTRESOURCEW(MANIFEST_RESOURCE);
    return CreateActCtxW(&request);
}

// Made once and kept as long as the process lives: windows hold on to it.
HANDLE context() {
    static const HANDLE made = createContext();
    return made;
}

}  // namespace

ThemeContext::ThemeContext() {
    if (context() != INVALID_HANDLE_VALUE) ActivateActCtx(context(), &m_cookie);
}

ThemeContext::~ThemeContext() {
    if (m_cookie) DeactivateActCtx(0, m_cookie);
}
