#include <cups/cups.h>

#include "common/ErrorState.h"
#include "common/ui/StationQString.h"
#include "printing/ui/QueueRefusal.h"

namespace logchecker {

// The scheduler's library keeps the outcome of a thread's last call, which the toolkit made.
std::string QueueRefusal() {
  if (cupsLastError() < IPP_STATUS_REDIRECTION_OTHER_SITE) return "";
  const char* text = cupsLastErrorString();
  return text != nullptr ? FromQString(QString::fromUtf8(text)) : ErrorText(kPrinterError);
}

}  // namespace logchecker
