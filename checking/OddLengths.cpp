#include "checking/OddLengths.h"

#include <cstddef>
#include <utility>

#include "checking/LengthBounds.h"

namespace logchecker {

namespace {

using Lengths = std::vector<BreakMismatch::Length>;

struct Group {
  std::vector<bool> members;
  int size = 0;
};

// The lengths that match `shortest`, which is the shortest of them.
Group MatchesOf(float shortest, const Lengths& lengths) {
  const LengthBounds bounds(shortest);
  Group group;
  for (const BreakMismatch::Length& length : lengths) {
    const bool in = length.found && length.seconds >= shortest && bounds.Hold(length.seconds);
    group.members.push_back(in);
    group.size += in ? 1 : 0;
  }
  return group;
}

}  // namespace

std::vector<bool> OddLengths(const Lengths& lengths) {
  Group most;
  bool tied = false;
  for (const BreakMismatch::Length& length : lengths) {
    if (!length.found) continue;
    Group group = MatchesOf(length.seconds, lengths);
    if (group.size == most.size && group.members != most.members) tied = true;
    if (group.size <= most.size) continue;
    most = std::move(group);
    tied = false;
  }
  std::vector<bool> odd(lengths.size(), false);
  if (tied || most.size < 2) return odd;
  for (size_t i = 0; i < lengths.size(); ++i) odd[i] = lengths[i].found && !most.members[i];
  return odd;
}

}  // namespace logchecker
