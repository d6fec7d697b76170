// A system without a printer.
#pragma once

namespace logchecker {

// From here to its end the toolkit finds no printer.
class NoPrinters {
 public:
  NoPrinters();
  ~NoPrinters();
  NoPrinters(const NoPrinters&) = delete;
  NoPrinters& operator=(const NoPrinters&) = delete;
};

}  // namespace logchecker
