// In what order a list control's rows stand after sorting. Portable.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

// A distance in one of the host's linear units; nothing for a text that isn't one.
using DistanceParser = std::function<std::optional<double>(const wchar_t* text, int unit)>;

// `cells` are the texts of the column to sort by, row by row, each with a zero behind it. Gives for each row
// which row's content it gets.
//
// Two cells in notations of distances are compared by their distances. If one of the two is a plain text,
// both are compared as texts, by code units. A distance that can't be parsed is less than nothing, and
// nothing is less than it. This is no strict weak ordering: `std::sort` must not be used. kept: programs
// depend on where equal, mixed and unreadable cells end up, so the steps of the sort are fixed.
std::vector<int> sortedOrder(std::span<const std::wstring_view> cells, bool ascending,
                             const DistanceParser& parse);
