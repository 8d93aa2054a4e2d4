#include "tests/ui/tree/LiveObjects.h"

#include <cstdlib>
#include <new>

namespace {

long g_live = 0;

void release(void* memory) {
    if (memory) --g_live;
    std::free(memory);
}

}  // namespace

long liveObjects() { return g_live; }

void* operator new(size_t size) {
    void* memory = std::malloc(size ? size : 1);
    if (!memory) throw std::bad_alloc();
    ++g_live;
    return memory;
}
void operator delete(void* memory) noexcept { release(memory); }
void operator delete(void* memory, size_t) noexcept { release(memory); }
