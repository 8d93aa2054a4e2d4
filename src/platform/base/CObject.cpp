#include "src/platform/base/CObject.h"

const CRuntimeClass CObject::runtimeClass = {"CObject", nullptr};
