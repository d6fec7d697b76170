// Profile files on the host's disk, read once for as long as they do not change.
#pragma once

#include <cstdint>
#include <string>

#include "platform/ProfileFiles.h"
#include "platform/posix/ProfileText.h"

namespace logchecker {

// The text of the file, empty when it can't be read. `hostPath` is a host path. The reference holds
// until the next call.
const ProfileText& ReadProfile(const std::string& hostPath);

ProfileState StateOfProfile(const std::string& hostPath);

// Each changes the file under its lock, whole or not at all, and returns an error number:
// kPathFileAccess where the file is there but can't be read, since a change would then drop what it
// holds, and kInvalidCall for a text that a line can't hold. What is missing is no error to those
// that delete; `wasThere` says whether it was.
int32_t SetProfileKey(const std::string& hostPath, const std::string& section,
                      const std::string& key, const std::string& value);
int32_t DeleteProfileKey(const std::string& hostPath, const std::string& section,
                         const std::string& key, bool* wasThere);
int32_t DeleteProfileSection(const std::string& hostPath, const std::string& section);

}  // namespace logchecker
