#include <cups/cups.h>

#include "common/ErrorState.h"
#include "common/ui/StationQString.h"
#include "printing/ui/QueueWatch.h"

namespace logchecker {

namespace {

bool IsThere(const QString& queue) {
  cups_dest_t* found = cupsGetNamedDest(CUPS_HTTP_DEFAULT, queue.toUtf8().constData(), nullptr);
  if (found == nullptr) return false;
  cupsFreeDests(1, found);
  return true;
}

}  // namespace

QueueWatch::QueueWatch(const QString& queue) : queue_(queue) {}

// The scheduler's library keeps the outcome of a thread's last call, which the toolkit made if it
// came so far.
std::string QueueWatch::Refusal(bool drawn) const {
  if (!drawn) return "";
  const ipp_status_t outcome = cupsLastError();
  if (outcome < IPP_STATUS_REDIRECTION_OTHER_SITE) return "";
  const char* text = cupsLastErrorString();
  std::string why =
      text != nullptr ? FromQString(QString::fromUtf8(text)) : ErrorText(kPrinterError);
  // Of a queue that it does not find the library says that a file is missing.
  if (outcome == IPP_STATUS_ERROR_INTERNAL && !IsThere(queue_)) return "The printer is not there";
  return why;
}

}  // namespace logchecker
