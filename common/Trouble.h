// What ends a program's work with one clear line.
#pragma once

#include <stdexcept>

namespace logchecker {

// Its text is the one line that says why.
class Trouble : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace logchecker
