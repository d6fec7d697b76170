#include "common/Lookalikes.h"

#include <set>

#include "common/PathText.h"
#include "common/UserInterface.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

std::set<std::string>& Told() {
  static std::set<std::string> told;
  return told;
}

}  // namespace

void TellLookalike(const std::string& path) {
  Lookalike found;
  if (!Os().directories.FindLookalike(path, &found) || !Told().insert(found.taken).second) return;
  Ui().Show({"The name \"" + ShownPath(path) +
                 "\" fits two entries that differ only in capital letters:\n\"" +
                 ShownPath(found.taken) + "\" is used, and \"" + ShownPath(found.other) +
                 "\" is not.\nPlease rename one of them.",
             MessageIcon::kExclamation});
}

void ForgetToldLookalikes() { Told().clear(); }

}  // namespace logchecker
