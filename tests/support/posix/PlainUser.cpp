#include "tests/support/posix/PlainUser.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "platform/Platform.h"

namespace logchecker {

namespace {

constexpr uid_t kPlainUser = 12345;

}  // namespace

ProgramResult RunAsPlainUser(const std::string& name, const std::string& arguments,
                             const TempFolder& folder) {
  if (geteuid() != 0) return RunProgram(name, arguments, folder);
  return RunShellCommand("setpriv --reuid=12345 --regid=12345 --clear-groups '" +
                             RealPlatform().system.ProgramFolder() + "/" + name + "' " + arguments,
                         folder);
}

WithoutRights::WithoutRights() : isRoot_(geteuid() == 0) {
  if (isRoot_ && (setegid(kPlainUser) != 0 || seteuid(kPlainUser) != 0)) std::abort();
}

WithoutRights::~WithoutRights() {
  if (isRoot_ && (seteuid(0) != 0 || setegid(0) != 0)) std::abort();
}

void OpenToAll(const TempFolder& folder) {
  using std::filesystem::perms;
  const auto open = [](const std::filesystem::path& path, bool isFolder) {
    const perms modes = perms::owner_read | perms::group_read | perms::others_read;
    const perms entering = perms::owner_exec | perms::group_exec | perms::others_exec;
    std::filesystem::permissions(path, isFolder ? modes | entering : modes,
                                 std::filesystem::perm_options::add);
  };
  open(folder.Path(), true);
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path())) {
    open(entry.path(), entry.is_directory());
  }
}

}  // namespace logchecker
