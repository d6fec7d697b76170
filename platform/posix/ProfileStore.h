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

// Writes the file whole or not at all. Returns an error number.
int32_t WriteProfile(const std::string& hostPath, const ProfileText& text);

// The file's text for a change; false when it is there but can't be read, since a change would then
// drop what it holds.
bool ReadProfileForChange(const std::string& hostPath, ProfileText* text);

}  // namespace logchecker
