// In what order a list control's rows stand after sorting. Portable.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "src/platform/base/CString.h"

// A distance in one of the host's linear units; nothing for a text that isn't one.
using DistanceParser = std::function<std::optional<double>(const CString& text, int unit)>;

// `cells` are the texts of the column to sort by, row by row. Gives for each row which row's content it gets.
//
// Cells of notations are compared by their distances, and textually, by code units, where one is a text. A
// distance that can't be parsed is below nothing. So that is no order that a library's sort would take; the
// outcome for equal, mixed and bad data is that of one certain procedure, which programs depend on.
std::vector<int> sortedOrder(std::span<const CString> cells, bool ascending, const DistanceParser& parse);
