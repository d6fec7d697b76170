// A Windows folder for as long as a fuzzer runs, so that none reads or writes the user's own.
#pragma once

#include "tests/support/OwnWindowsFolder.h"

namespace logchecker {

inline const TempFolder& FuzzStationFolder() {
  static const OwnWindowsFolder folder;
  return folder.folder();
}

}  // namespace logchecker
