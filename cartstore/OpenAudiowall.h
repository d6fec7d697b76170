// Opening and closing the store.
#pragma once

#include <cstdint>

namespace logchecker {

// Opens one part, or all in use with `part` 0, and fills list files that are missing or short with
// blank records. 0 when the part, or any part, is usable, else -1. Unless `quiet`, says what is
// missing, and asks before it makes a list file; when quiet it makes one without asking. After the
// answer No the part counts as usable with no file open: its first read fails, and the quiet
// opening that the next read then does makes the file.
int32_t OpenAudiowall(int16_t part, bool quiet);

// Opens anew, under its own number, each list file whose place another one has taken since it was
// opened, as a restore does: the open one would go on showing the carts that were. Asks nothing and
// makes nothing; a file that is missing just then stays in use as it was.
void ReopenReplacedParts();

// Closes every part's list file. The locations stay.
void CloseAudiowall();

}  // namespace logchecker
