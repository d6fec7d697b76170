#include "common/FolderHelpers.h"

#include "common/DebugLog.h"
#include "common/ErrorState.h"
#include "common/Messages.h"
#include "common/PathText.h"
#include "common/UserInterface.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

bool IsNetworkPath(const std::string& path) { return path.rfind("\\\\", 0) == 0; }

// "\\server\share" and "C:" stand for what they hold.
bool IsBareRoot(const std::string& path) {
  if (IsNetworkPath(path)) {
    const size_t share = path.find('\\', 2);
    if (share != std::string::npos && path.find('\\', share + 1) == std::string::npos) return true;
  }
  return path.size() == 2;
}

// Keeps the current directory for as long as it lives, and the pointer at the default afterwards.
class CurrentDirectoryKeeper {
 public:
  CurrentDirectoryKeeper() { known_ = Os().directories.CurrentDirectory(&path_) == kNoError; }
  CurrentDirectoryKeeper(const CurrentDirectoryKeeper&) = delete;
  CurrentDirectoryKeeper& operator=(const CurrentDirectoryKeeper&) = delete;
  ~CurrentDirectoryKeeper() {
    if (!known_) return;
    Os().directories.ChangeDrive(path_);
    Os().directories.ChangeDirectory(path_);
  }

 private:
  std::string path_;
  bool known_;
};

bool CreateNetworkPath(const std::string& path, bool quiet) {
  ClearError();
  if (Succeeded(Os().directories.MakeDirectory(path))) return false;
  std::string name;
  const int32_t listing = Os().directories.FirstName(path + "\\.", true, &name);
  if (listing == kNoError && !name.empty()) {
    ClearError();
    return true;
  }
  if (!quiet) {
    Ui().Show({"You must manually create the path : " + path, MessageIcon::kInformation});
  }
  return false;
}

// Goes down the folders of `path`, which ends in a separator, from `rootLength` on and makes each
// that is missing. Returns the error that stopped it.
int32_t WalkDown(const std::string& path, size_t rootLength) {
  Directories& directories = Os().directories;
  size_t begin = rootLength;
  while (begin < path.size()) {
    size_t end = begin;
    while (!IsPathSeparator(path[end])) ++end;
    const std::string folder = path.substr(begin, end - begin);
    const int32_t making = directories.MakeDirectory(folder);
    if (making != kNoError && making != kPathFileAccess) return making;
    const int32_t entering = directories.ChangeDirectory(folder);
    if (entering != kNoError) return entering;
    begin = end + 1;
  }
  return kNoError;
}

int32_t CreateLocalPath(std::string path) {
  Directories& directories = Os().directories;
  if (path.empty() || !IsPathSeparator(path.back())) path += '\\';
  int32_t error = directories.ChangeDrive(path);
  const auto rootLength = static_cast<size_t>(directories.RootLength(path));
  if (error == kNoError && rootLength > 0) {
    error = directories.ChangeDirectory(path.substr(0, rootLength));
  }
  return error == kNoError ? WalkDown(path, rootLength) : error;
}

}  // namespace

bool DirectoryExists(std::string path) {
  WriteDebugLogIndented("Start DirectoryExists", 5, IndentStep::kDeeperAfter);
  if (path.empty()) return false;
  if (IsBareRoot(path)) path += '\\';
  ClearError();
  WriteDebugLog("Call Dir(" + path + ", vbDirectory)", -1);
  std::string name;
  const bool exists = Succeeded(Os().directories.FirstName(path, true, &name)) && !name.empty();
  WriteDebugLogIndented(std::string("End DirectoryExists (") + (exists ? "True" : "False") + ")", 5,
                        IndentStep::kBackBefore);
  return exists;
}

bool CreatePath(const std::string& path, bool quiet) {
  const CurrentDirectoryKeeper keeper;
  if (IsNetworkPath(path)) return CreateNetworkPath(path, quiet);
  Ui().SetMousePointer(MousePointer::kHourglass);
  ClearError();
  const bool made = Succeeded(CreateLocalPath(path));
  if (!made) {
    ShowErrorMessage("While Attempting to Create Directories on Destination Drive.",
                     gErrorState.Number, quiet);
  }
  Ui().SetMousePointer(MousePointer::kDefault);
  return made;
}

}  // namespace logchecker
