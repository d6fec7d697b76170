// Names that could stand for two entries of a directory, where letter case does not count.
#pragma once

#include <string>

namespace logchecker {

// Says in a message when a part of `path` fits two entries and neither exactly, since one of them
// is taken then that may be the wrong one. Each pair is said once.
void TellLookalike(const std::string& path);

// Lets each pair be said again, for a person who has just confirmed a path.
void ForgetToldLookalikes();

}  // namespace logchecker
