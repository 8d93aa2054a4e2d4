// Calls from the plug-in into the host's Lisp.
#pragma once

#include <memory>

#include "src/platform/host/HostLisp.h"

struct ReleasesChain {
    void operator()(HostValue* chain) const { hostRelRb(chain); }
};
// A chain that the plug-in built or was given.
using OwnedChain = std::unique_ptr<HostValue, ReleasesChain>;

// Calls the Lisp function of that name, with one text as its argument where there is one. What it gives, and
// whether it exists or fails, is the host's business.
void invokeLisp(const wchar_t* function, const wchar_t* text = nullptr);
