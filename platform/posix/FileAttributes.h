// What a file has beside its content.
#pragma once

namespace logchecker {

// Gives the file open as `to` the owner, the group, the mode, the access list and the extended
// attributes of the one open as `from`. False when it can't have them all.
bool CopyAttributes(int from, int to);

}  // namespace logchecker
