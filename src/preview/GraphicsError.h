// A call of the graphics system that was refused. The system itself answers with a status: an exception may
// not cross between modules.
#pragma once

#include <stdexcept>

#include "src/platform/host/HostValue.h"

class GraphicsError : public std::runtime_error {
  public:
    GraphicsError() : std::runtime_error("the graphics system refused a call") {}
};

inline void demand(int status) {
    if (status != HOST_NORMAL) throw GraphicsError();
}
