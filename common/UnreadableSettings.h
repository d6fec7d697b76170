// A settings file that is there and can't be read.
#pragma once

#include <string>

namespace logchecker {

// The file's whole path: a bare name lies in the Windows folder.
std::string PathOfSettings(const std::string& file);

// Why the settings file can't be read, in one clear line that names it; "" when it can be read or
// is missing. Its keys all have their defaults then, which is not what the station means by it.
std::string WhyUnreadable(const std::string& file);

// Says so in a box; true when there was something to say. A name that could be two is said too, and
// is no reason.
bool TellIfUnreadable(const std::string& file);

}  // namespace logchecker
