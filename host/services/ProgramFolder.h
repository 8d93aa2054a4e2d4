#pragma once

#include <filesystem>

// Where the host's executable lies, and with it the modules that are delivered beside it.
std::filesystem::path programFolder();
// A file that is delivered beside the executable, or lies in the source tree that it was built in; empty
// where there is none.
std::filesystem::path findDelivered(const std::filesystem::path& file);
