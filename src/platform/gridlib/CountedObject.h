// What COM objects have in common.
#pragma once

#include <windows.h>

#include <unknwn.h>

// An object that counts its owners, of whom who made it by `new` is the first, and answers to `Interface`, to
// those of its bases that are named, and to IUnknown. Derived classes are final and keep their destructor to
// themselves.
template <class Interface, class... Bases>
class CountedObject : public Interface {
  public:
    CountedObject() = default;
    CountedObject(const CountedObject&) = delete;
    CountedObject& operator=(const CountedObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (!object) return E_POINTER;
        const bool is =
            id == __uuidof(IUnknown) || id == __uuidof(Interface) || (... || (id == __uuidof(Bases)));
        *object = is ? static_cast<Interface*>(this) : nullptr;
        if (!is) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&m_owners)); }
    ULONG STDMETHODCALLTYPE Release() override {
        const LONG owners = InterlockedDecrement(&m_owners);
        if (owners == 0) delete this;
        return static_cast<ULONG>(owners);
    }

  protected:
    virtual ~CountedObject() = default;

  private:
    LONG m_owners = 1;
};
