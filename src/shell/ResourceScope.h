// While it lives, strings and dialogs are looked up in the resource module first.
#pragma once

#include "src/shell/Module.h"

class ResourceScope {
  public:
    ResourceScope() : m_kept(AfxGetModuleState()->m_hCurrentResourceHandle) {
        AfxGetModuleState()->m_hCurrentResourceHandle = g_resourceModule.moduleResource;
    }
    ~ResourceScope() { AfxGetModuleState()->m_hCurrentResourceHandle = m_kept; }
    ResourceScope(const ResourceScope&) = delete;
    ResourceScope& operator=(const ResourceScope&) = delete;

  private:
    HMODULE m_kept;
};
