#include "host/lisp/Heap.h"

#include <algorithm>
#include <array>
#include <bit>

#include "host/lisp/Error.h"
#include "host/lisp/Interpreter.h"

#if defined(__has_feature)
#define HAS_ADDRESS_SANITIZER __has_feature(address_sanitizer)
#elif defined(__SANITIZE_ADDRESS__)
#define HAS_ADDRESS_SANITIZER 1
#else
#define HAS_ADDRESS_SANITIZER 0
#endif

#if HAS_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#define ASAN_UNPOISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#endif

namespace lisp {

// Aligned to its size, so that the block of a cons is found by its address.
struct alignas(32768) Heap::Block {
    static constexpr size_t CONS_COUNT = 1016;

    // A bit for each cons.
    std::array<uint64_t, 16> marked{};
    std::array<uint64_t, 16> used{};
    Cons conses[CONS_COUNT];

    static Block* of(const Cons* cons) {
        return reinterpret_cast<Block*>(reinterpret_cast<uintptr_t>(cons) & ~uintptr_t(sizeof(Block) - 1));
    }
    // Sets the bit of a cons; false where it is set already.
    bool set(std::array<uint64_t, 16>& bits, const Cons* cons) {
        const size_t index = size_t(cons - conses);
        const uint64_t bit = uint64_t(1) << (index % 64);
        if (bits[index / 64] & bit) return false;
        bits[index / 64] |= bit;
        return true;
    }
};

Heap::Heap(size_t limit, int64_t& countdown) : m_limit(limit), m_countdown(countdown) {}

Heap::~Heap() {
    for (auto& block : m_blocks) ASAN_UNPOISON_MEMORY_REGION(block->conses, sizeof block->conses);
    while (m_objects) {
        Object* next = m_objects->next;
        destroy(m_objects);
        m_objects = next;
    }
}

void Heap::charge(size_t bytes) {
    bool full = bytes > m_limit || m_used > m_limit - bytes;
    // What the failed program leaves behind is garbage.
    if (full) m_threshold = 0;
    if (full || m_used + bytes >= m_threshold) m_countdown = 0;
    if (full) throw Error(u"out of memory");
    m_used += bytes;
}

void Heap::requireRoom(size_t bytes) const {
    if (bytes > m_limit || m_used > m_limit - bytes) throw Error(u"out of memory");
}

Cons* Heap::cons(Value car, Value cdr, Place place) {
    charge(sizeof(Cons));
    if (!m_freeConses) addBlock();
    Cons* cons = m_freeConses;
    ASAN_UNPOISON_MEMORY_REGION(cons, sizeof *cons);
    m_freeConses = reinterpret_cast<Cons*>(cons->code);
    Block* block = Block::of(cons);
    block->set(block->used, cons);
    *cons = {place, nullptr, car.orNil(), cdr.orNil()};
    return cons;
}

void Heap::addBlock() {
    static_assert(sizeof(Block) == 32768);
    m_blocks.push_back(std::make_unique<Block>());
    Block& block = *m_blocks.back();
    for (size_t i = Block::CONS_COUNT; i-- > 0;) release(&block.conses[i]);
}

void Heap::release(Cons* cons) {
    cons->code = reinterpret_cast<Code*>(m_freeConses);
    m_freeConses = cons;
    ASAN_POISON_MEMORY_REGION(cons, sizeof *cons);
}

template <class T, class... Arguments>
T* Heap::adopt(size_t bytes, Arguments&&... arguments) {
    charge(bytes);
    T* object = new T(std::forward<Arguments>(arguments)...);
    object->next = m_objects;
    m_objects = object;
    return object;
}

String* Heap::string(std::u16string text) {
    size_t bytes = sizeof(String) + 2 * text.size();
    return adopt<String>(bytes, std::move(text));
}

Function* Heap::function() { return adopt<Function>(sizeof(Function)); }
File* Heap::file() { return adopt<File>(sizeof(File)); }
Code* Heap::code() { return adopt<Code>(sizeof(Code)); }

void Heap::mark(Value value) {
    if (value.isCons()) {
        Block* block = Block::of(value.asCons());
        if (block->set(block->marked, value.asCons())) m_greyConses.push_back(value.asCons());
    } else if (value.isString()) {
        value.asStringObject()->marked = true;
    } else if (value.isFunction()) {
        mark(static_cast<Object*>(value.asFunction()));
    } else if (value.isFile()) {
        value.asFile()->marked = true;
    }
}

void Heap::mark(Object* object) {
    if (!object || object->marked) return;
    object->marked = true;
    m_greyObjects.push_back(object);
}

void Heap::markChildren(Object* object) {
    if (object->kind == ObjectKind::Function) mark(static_cast<Function*>(object)->code);
    if (object->kind == ObjectKind::Code)
        for (Value constant : static_cast<Code*>(object)->constants) mark(constant);
}

void Heap::collect(const std::function<void()>& markRoots) {
    markRoots();
    for (Root* root = m_firstRoot; root; root = root->m_next) mark(root->m_value);
    while (!m_greyConses.empty() || !m_greyObjects.empty()) {
        if (!m_greyConses.empty()) {
            Cons* cons = m_greyConses.back();
            m_greyConses.pop_back();
            mark(cons->code);
            mark(cons->car);
            mark(cons->cdr);
        } else {
            Object* object = m_greyObjects.back();
            m_greyObjects.pop_back();
            markChildren(object);
        }
    }
    m_used = 0;
    sweepConses();
    sweepObjects();
    // Near the limit more often, but not at every step.
    size_t room = m_limit - std::min(m_limit, m_used);
    m_threshold = std::min(std::max(size_t(8) << 20, m_used * 2), m_used + std::max(room / 2, m_limit / 64));
}

void Heap::sweepConses() {
    for (auto& block : m_blocks) {
        for (size_t word = 0; word < block->used.size(); ++word) {
            const uint64_t kept = block->marked[word];
            for (uint64_t freed = block->used[word] & ~kept; freed; freed &= freed - 1)
                release(&block->conses[word * 64 + size_t(std::countr_zero(freed))]);
            m_used += size_t(std::popcount(kept)) * sizeof(Cons);
        }
        block->used = block->marked;
        block->marked = {};
    }
}

void Heap::sweepObjects() {
    for (Object** link = &m_objects; *link;) {
        Object* object = *link;
        if (object->marked) {
            object->marked = false;
            m_used += sizeOf(object);
            link = &object->next;
        } else {
            *link = object->next;
            destroy(object);
        }
    }
}

size_t Heap::sizeOf(const Object* object) {
    switch (object->kind) {
        case ObjectKind::String:
            return sizeof(String) + 2 * static_cast<const String*>(object)->text.size();
        case ObjectKind::Function:
            return sizeof(Function);
        case ObjectKind::File:
            return sizeof(File) + 2 * static_cast<const File*>(object)->content.size();
        case ObjectKind::Code:
            return sizeof(Code) + 64 * static_cast<const Code*>(object)->nodes.size();
    }
    return 0;
}

void Heap::destroy(Object* object) {
    switch (object->kind) {
        case ObjectKind::String:
            delete static_cast<String*>(object);
            break;
        case ObjectKind::Function:
            delete static_cast<Function*>(object);
            break;
        case ObjectKind::File:
            delete static_cast<File*>(object);
            break;
        case ObjectKind::Code:
            delete static_cast<Code*>(object);
            break;
    }
}

Root::Root(Interpreter& lisp, Value value) : m_value(value), m_previous(nullptr), m_first(&lisp.rootList()) {
    m_next = *m_first;
    if (m_next) m_next->m_previous = this;
    *m_first = this;
}

Root::~Root() {
    if (m_previous)
        m_previous->m_next = m_next;
    else
        *m_first = m_next;
    if (m_next) m_next->m_previous = m_previous;
}

}  // namespace lisp
