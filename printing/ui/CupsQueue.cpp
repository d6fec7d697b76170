#include "printing/ui/CupsQueue.h"

#include <cups/cups.h>

#include <memory>
#include <string>

#include "common/ErrorState.h"
#include "common/ui/StationQString.h"
#include "printing/PrintCanvas.h"

namespace logchecker {

namespace {

constexpr char kStopped[] = "5";  // of "printer-state"

struct FreeDestination {
  void operator()(cups_dest_t* destination) const { cupsFreeDests(1, destination); }
};

[[noreturn]] void Fail(const std::string& why) { throw PrintError(kPrinterError, why); }

std::string LastError() {
  const char* text = cupsLastErrorString();
  return text != nullptr ? FromQString(QString::fromUtf8(text)) : ErrorText(kPrinterError);
}

void RequireReady(const QByteArray& queue) {
  const std::unique_ptr<cups_dest_t, FreeDestination> found(
      cupsGetNamedDest(CUPS_HTTP_DEFAULT, queue.constData(), nullptr));
  if (!found) Fail("The printer is not there: " + LastError());
  const auto option = [&](const char* name) {
    const char* value = cupsGetOption(name, found->num_options, found->options);
    return std::string(value != nullptr ? value : "");
  };
  if (option("printer-state") == kStopped) Fail("The printer is stopped");
  if (option("printer-is-accepting-jobs") == "false") Fail("The printer takes no jobs");
}

}  // namespace

void SubmitToQueue(const QString& queue, const QString& file, const QString& title,
                   const char* sides, int copies) {
  const QByteArray name = queue.toUtf8();
  RequireReady(name);
  cups_option_t* options = nullptr;
  int count = 0;
  if (*sides != '\0') count = cupsAddOption("sides", sides, count, &options);
  if (copies > 1) count = cupsAddOption("copies", std::to_string(copies).c_str(), count, &options);
  const int job = cupsPrintFile(name.constData(), file.toUtf8().constData(),
                                title.toUtf8().constData(), count, options);
  cupsFreeOptions(count, options);
  if (job == 0) Fail(LastError());
}

}  // namespace logchecker
