// A day as people name it.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

// "Friday 2027-01-15". The same in every language: what reads a report may search it for words.
std::string DayName(int32_t day);

}  // namespace logchecker
