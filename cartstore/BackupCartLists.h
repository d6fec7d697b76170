// The one-off backup of the list files, when a store of an older version is first met.
#pragma once

namespace logchecker {

// Copies each part's list file into <Path>\Backups\<today>, unless a copy is found; with `force`
// even then. The copy is looked for one folder too high, directly under Backups, so normally none
// is found and the copy is made: this is meant. Stops at the first error.
void BackupCartLists(bool force);

}  // namespace logchecker
