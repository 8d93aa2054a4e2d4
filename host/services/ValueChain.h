// Chains of HostValue nodes: made, copied and freed in the host's memory. Portable.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <memory>
#include <string_view>

#include "src/platform/host/HostValue.h"

// One node of that type, all else zero. Throws std::bad_alloc.
HostValue* newNode(int type);

// Memory for a node's string, freed with its node. Throws std::bad_alloc.
void* newNodeMemory(size_t bytes);

// A NUL-terminated copy of `text` in such memory.
wchar_t* newNodeText(std::wstring_view text);

// Frees every node of the chain and the strings of its HV_STRING nodes. Null is allowed.
void releaseChain(HostValue* chain);

// A chain from pairs of type code and value, as hostBuildList takes them; null when `type` ends it at once.
HostValue* buildChain(int type, va_list rest);

// Frees the chain it holds.
struct ChainRelease {
    void operator()(HostValue* chain) const { releaseChain(chain); }
};
using OwnedChain = std::unique_ptr<HostValue, ChainRelease>;

// Builds a chain from its head to its tail and owns it until it is taken.
class ChainBuilder {
  public:
    // The new last node.
    HostValue& append(int type);
    void appendText(std::wstring_view text);
    HostValue* take() { return m_head.release(); }

  private:
    OwnedChain m_head;
    HostValue* m_tail = nullptr;
};
