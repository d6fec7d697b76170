#include "headless/DayName.h"

#include <array>

#include "common/DatePicture.h"

namespace logchecker {

std::string DayName(int32_t day) {
  constexpr std::array<const char*, 7> kNames = {"Saturday",  "Sunday",   "Monday", "Tuesday",
                                                 "Wednesday", "Thursday", "Friday"};
  return std::string(kNames[static_cast<size_t>((day % 7 + 7) % 7)]) + " " + IsoDate(day);
}

}  // namespace logchecker
