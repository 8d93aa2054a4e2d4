// The root of all classes that are held by pointer and asked for their run-time class.
#pragma once

#include "src/platform/base/RuntimeClass.h"

class CObject {
  public:
    static const CRuntimeClass runtimeClass;

    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;

    virtual const CRuntimeClass* GetRuntimeClass() const { return &runtimeClass; }
    bool IsKindOf(const CRuntimeClass* other) const { return GetRuntimeClass()->isDerivedFrom(other); }
};
