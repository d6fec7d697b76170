// Which lengths of a break time stand out.
#pragma once

#include <vector>

#include "checking/BreakCheck.h"

namespace logchecker {

// Marks the lengths, in step with those given, that differ by more than the tolerance from what
// most splits have: from the largest group of at least two lengths that match each other. Without
// such a group, or with two as large, nobody can say which length is the wrong one, and none is
// marked. A split without a break has no length and is never marked.
std::vector<bool> OddLengths(const std::vector<BreakMismatch::Length>& lengths);

}  // namespace logchecker
