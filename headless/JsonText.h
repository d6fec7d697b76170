// JSON as text that people can read too.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

namespace logchecker {

// An object or list of plain values is one line, what holds others has a line for each: an advert
// is a line, and a report with thousands of them stays small. Control characters are escaped, all
// of them: the ones that JSON lets stand would be obeyed by a terminal that shows it. UTF-8, ends
// in a line feed.
std::string JsonText(const nlohmann::ordered_json& json);

}  // namespace logchecker
