// Holds a reference to an object of the platform's component model.
#pragma once

#include <unknwn.h>

#include <utility>

template <class Interface>
class ComPtr {
  public:
    ComPtr() = default;
    ComPtr(ComPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    ComPtr& operator=(ComPtr&& other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~ComPtr() {
        if (m_object) m_object->Release();
    }

    Interface* operator->() const { return m_object; }
    Interface& operator*() const { return *m_object; }
    Interface* get() const { return m_object; }
    explicit operator bool() const { return m_object; }
    void reset() { *this = ComPtr(); }

    // Where a function puts an object that the holder then owns. Only for an empty holder.
    Interface** out() { return &m_object; }
    void** outVoid() { return reinterpret_cast<void**>(&m_object); }

  private:
    Interface* m_object = nullptr;
};
