// Against faults of the platform's decoders: a spoilt file makes some of them read memory that isn't there.
#pragma once

#include <functional>

// Does the work, on this thread, not nested. False where it was broken off since it reached for memory that
// isn't there. What it had taken until then is lost, and no destructor of it runs.
bool withoutFault(const std::function<void()>& work);
