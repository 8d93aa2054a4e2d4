#include "src/platform/mfc/KeptException.h"

#include <exception>
#include <utility>

namespace {

std::exception_ptr g_kept;

}  // namespace

void keepException() noexcept {
    if (!g_kept) g_kept = std::current_exception();
}

bool hasKeptException() noexcept { return g_kept != nullptr; }

void raiseKeptException() {
    if (const std::exception_ptr kept = std::exchange(g_kept, nullptr)) std::rethrow_exception(kept);
}
