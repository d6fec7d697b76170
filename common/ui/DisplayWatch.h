// The display that a program's windows are shown on: it may not be there, and it may go.
#pragma once

#include <functional>
#include <string>

namespace logchecker {

// Made before the application, and lives as long as it. Without a display, or when the display
// goes, the program says so in one line on standard error, closes its files and ends at once, with
// exit code 2: the toolkit would abort, or tear down windows that the display no longer knows.
// Whatever else the toolkit has to say comes to standard error in the program's name.
class DisplayWatch {
 public:
  DisplayWatch(const std::string& program, std::function<void()> closeFiles);
  ~DisplayWatch();
  DisplayWatch(const DisplayWatch&) = delete;
  DisplayWatch& operator=(const DisplayWatch&) = delete;

  // The application has been made, so there is a display.
  void DisplayIsThere();
};

}  // namespace logchecker
