// Owns the objects of an interpreter and collects those that nothing reaches (mark and sweep).
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/lisp/Node.h"
#include "host/lisp/Objects.h"

namespace lisp {

class Root;

class Heap {
  public:
    // `countdown` is set to 0 as soon as a collection is due.
    Heap(size_t limit, int64_t& countdown);
    ~Heap();
    Heap(const Heap&) = delete;
    Heap& operator=(const Heap&) = delete;

    // Each throws Error at the limit and never collects.
    Cons* cons(Value car, Value cdr, Place place = {});
    String* string(std::u16string text);
    Function* function();
    File* file();
    Code* code();
    // Accounts for memory that an object holds beside itself.
    void charge(size_t bytes);

    // Throws Error where so many bytes more would not fit; asked while a large text grows.
    void requireRoom(size_t bytes) const;

    // So much was made since the last collection that another is worth its time.
    bool wantsCollection() const { return m_used >= m_threshold; }
    // `markRoots` calls mark() for every value to keep.
    void collect(const std::function<void()>& markRoots);
    void mark(Value value);

    size_t used() const { return m_used; }
    Root*& roots() { return m_firstRoot; }

  private:
    struct Block;

    template <class T, class... Arguments>
    T* adopt(size_t bytes, Arguments&&... arguments);
    void addBlock();
    // Puts a cons on the list of free ones.
    void release(Cons* cons);
    void mark(Object* object);
    void markChildren(Object* object);
    void sweepConses();
    void sweepObjects();
    static size_t sizeOf(const Object* object);
    static void destroy(Object* object);

    size_t m_limit;
    int64_t& m_countdown;
    size_t m_used = 0;
    size_t m_threshold = size_t(8) << 20;
    std::vector<std::unique_ptr<Block>> m_blocks;
    Cons* m_freeConses = nullptr;
    Object* m_objects = nullptr;
    Root* m_firstRoot = nullptr;
    // Marked, children still to be marked.
    std::vector<Cons*> m_greyConses;
    std::vector<Object*> m_greyObjects;
};

}  // namespace lisp
