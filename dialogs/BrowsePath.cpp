#include "dialogs/BrowsePath.h"

#include "common/TextHelpers.h"

namespace logchecker {

std::string gBrowseStartPath;

std::string ChosenFolder(const std::string& path) {
  std::string folder = TrimAtNull(path, false);
  if (folder.ends_with(":\\")) folder.pop_back();
  return folder;
}

}  // namespace logchecker
