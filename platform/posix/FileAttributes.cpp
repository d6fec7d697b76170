#include "platform/posix/FileAttributes.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <set>
#include <string>

namespace logchecker {

namespace {

constexpr mode_t kPermissionBits = 07777;
constexpr char kAccessList[] = "system.posix_acl_access";
constexpr char kLabel[] = "security.selinux";

// Marks of the content, which the system makes anew with each write.
bool BelongsToContent(const std::string& name) {
  return name.rfind("security.", 0) == 0 && name != kLabel;
}

// Nothing when they can't be told. A file system that has none has none to lose.
std::optional<std::set<std::string>> AttributeNames(int file) {
  std::set<std::string> names;
  const ssize_t size = flistxattr(file, nullptr, 0);
  if (size < 0) return errno == ENOTSUP ? std::optional(names) : std::nullopt;
  std::string list(static_cast<size_t>(size), '\0');
  const ssize_t length = flistxattr(file, list.data(), list.size());
  if (length < 0) return std::nullopt;
  list.resize(static_cast<size_t>(length));
  for (size_t begin = 0; begin < list.size();) {
    const std::string name = list.c_str() + begin;
    begin += name.size() + 1;
    if (!BelongsToContent(name)) names.insert(name);
  }
  return names;
}

std::optional<std::string> Attribute(int file, const std::string& name) {
  const ssize_t size = fgetxattr(file, name.c_str(), nullptr, 0);
  if (size < 0) return std::nullopt;
  std::string value(static_cast<size_t>(size), '\0');
  const ssize_t length = fgetxattr(file, name.c_str(), value.data(), value.size());
  if (length < 0) return std::nullopt;
  value.resize(static_cast<size_t>(length));
  return value;
}

bool CopyAttribute(int from, int to, const std::string& name) {
  const std::optional<std::string> value = Attribute(from, name);
  if (!value) return false;
  return Attribute(to, name) == value ||
         fsetxattr(to, name.c_str(), value->data(), value->size(), 0) == 0;
}

bool CopyExtendedAttributes(int from, int to) {
  const auto wanted = AttributeNames(from);
  const auto present = AttributeNames(to);
  if (!wanted || !present) return false;
  for (const std::string& name : *wanted) {
    if (!CopyAttribute(from, to, name)) return false;
  }
  // A new file may have an access list from its folder.
  const bool hasSurplus = present->count(kAccessList) != 0 && wanted->count(kAccessList) == 0;
  return !hasSurplus || fremovexattr(to, kAccessList) == 0;
}

}  // namespace

bool CopyAttributes(int from, int to) {
  struct stat wanted {};
  struct stat present {};
  if (fstat(from, &wanted) != 0 || fstat(to, &present) != 0) return false;
  const bool sameOwner = wanted.st_uid == present.st_uid && wanted.st_gid == present.st_gid;
  // An owner may hand the file to a group of his, but not to another owner.
  const uid_t owner = wanted.st_uid == present.st_uid ? static_cast<uid_t>(-1) : wanted.st_uid;
  if (!sameOwner && fchown(to, owner, wanted.st_gid) != 0) return false;
  if (!CopyExtendedAttributes(from, to)) return false;
  // Last, since a change of the owner takes bits away, in silence even.
  if (fchmod(to, wanted.st_mode & kPermissionBits) != 0 || fstat(to, &present) != 0) return false;
  return wanted.st_mode == present.st_mode && wanted.st_uid == present.st_uid &&
         wanted.st_gid == present.st_gid;
}

}  // namespace logchecker
