#pragma once

#include <filesystem>

// Where the host's executable lies, and with it the modules that are delivered beside it.
std::filesystem::path programFolder();
