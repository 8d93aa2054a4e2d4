// Chains of HostValue nodes: made, copied and freed in the host's memory. Portable.
#pragma once

#include <algorithm>
#include <cstdarg>
#include <cstddef>
#include <memory>
#include <memory_resource>
#include <string_view>
#include <utility>

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
    // With `memory` the chain lives as long as that and is never released.
    explicit ChainBuilder(std::pmr::memory_resource* memory = nullptr) : m_memory(memory) {}
    ~ChainBuilder() {
        if (!m_memory) releaseChain(m_head);
    }
    ChainBuilder(const ChainBuilder&) = delete;
    ChainBuilder& operator=(const ChainBuilder&) = delete;

    // The new last node.
    HostValue& append(int type);
    template <class Char>
    void appendText(std::basic_string_view<Char> text) {
        auto* copy = static_cast<wchar_t*>(allocate((text.size() + 1) * sizeof(wchar_t)));
        *std::copy(text.begin(), text.end(), copy) = L'\0';
        append(HV_STRING).value.stringValue = copy;
    }
    HostValue* take() { return std::exchange(m_head, nullptr); }

  private:
    void* allocate(size_t bytes) { return m_memory ? m_memory->allocate(bytes) : newNodeMemory(bytes); }

    std::pmr::memory_resource* m_memory;
    HostValue* m_head = nullptr;
    HostValue* m_tail = nullptr;
};
