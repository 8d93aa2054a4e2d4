// Run-time classes: who is a kind of whom, asked by identity and not by C++ type.
#pragma once

struct CRuntimeClass {
    const char* name;
    const CRuntimeClass* base;

    bool isDerivedFrom(const CRuntimeClass* other) const {
        for (const CRuntimeClass* at = this; at; at = at->base)
            if (at == other) return true;
        return false;
    }
};

#define RUNTIME_CLASS(Class) (&Class::runtimeClass)

// Within a class body: the class has a run-time class of its own. Without it, it answers with its base's.
#define DECLARE_DYNAMIC(Class)               \
  public:                                    \
    static const CRuntimeClass runtimeClass; \
    const CRuntimeClass* GetRuntimeClass() const override { return &runtimeClass; }

#define IMPLEMENT_DYNAMIC(Class, Base) \
    const CRuntimeClass Class::runtimeClass = {#Class, RUNTIME_CLASS(Base)};
