// What wexhost --compare-pictures does.
#pragma once

#include <span>
#include <string>

// Tells on standard error of each pair of files of which the second doesn't look as the first. Gives the exit
// status: 1 where there is one.
int comparePictures(std::span<const std::wstring> files);
