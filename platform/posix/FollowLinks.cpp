#include "platform/posix/FollowLinks.h"

#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <filesystem>

namespace logchecker {

std::string FollowLinks(const std::string& hostPath) {
  constexpr int kMostLinks = 40;  // the system follows no more
  std::error_code failure;
  std::string file = std::filesystem::absolute(hostPath, failure).string();
  if (failure) return hostPath;
  char text[PATH_MAX];
  if (realpath(file.c_str(), text) != nullptr) return text;
  for (int links = 0; links < kMostLinks; ++links) {
    const ssize_t length = readlink(file.c_str(), text, sizeof text);
    if (length <= 0) break;
    file = text[0] == '/' ? "" : FolderOf(file);
    file.append(text, static_cast<size_t>(length));
  }
  return file;
}

std::string FolderOf(const std::string& hostPath) {
  return hostPath.substr(0, hostPath.find_last_of('/') + 1);
}

bool IsNameOf(const std::string& hostPath, int descriptor) {
  struct stat named {};
  struct stat open {};
  return lstat(hostPath.c_str(), &named) == 0 && fstat(descriptor, &open) == 0 &&
         named.st_dev == open.st_dev && named.st_ino == open.st_ino;
}

}  // namespace logchecker
