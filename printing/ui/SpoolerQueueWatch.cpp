#include "platform/windows/WindowsApi.h"
//
#include <winspool.h>

#include <cstddef>
#include <string_view>
#include <vector>

#include "common/ErrorState.h"
#include "common/ui/StationQString.h"
#include "printing/ui/QueueWatch.h"

namespace logchecker {

namespace {

class OpenQueue {
 public:
  explicit OpenQueue(const QString& queue) {
    std::wstring name = queue.toStdWString();
    if (!OpenPrinterW(name.data(), &handle_, nullptr)) {
      code_ = GetLastError();
      handle_ = nullptr;
    }
  }
  ~OpenQueue() {
    if (handle_ != nullptr) ClosePrinter(handle_);
  }
  OpenQueue(const OpenQueue&) = delete;
  OpenQueue& operator=(const OpenQueue&) = delete;

  DWORD code() const { return code_; }

  // Calls `see` with each job.
  template <typename See>
  void EachJob(const See& see) const {
    constexpr DWORD kAll = 0xFFFF;
    DWORD size = 0;
    DWORD count = 0;
    EnumJobsW(handle_, 0, kAll, 1, nullptr, 0, &size, &count);
    if (size == 0) return;
    // The strings of the jobs lie behind them.
    std::vector<JOB_INFO_1W> jobs(size / sizeof(JOB_INFO_1W) + 1);
    if (!EnumJobsW(handle_, 0, kAll, 1, reinterpret_cast<BYTE*>(jobs.data()), size, &size,
                   &count)) {
      return;
    }
    for (size_t i = 0; i < count; ++i) see(jobs[i]);
  }

 private:
  HANDLE handle_ = nullptr;
  DWORD code_ = ERROR_SUCCESS;
};

// The system's own words, without the full stop and the line end that they come with.
std::string SystemText(DWORD code) {
  char text[512] = "";
  const DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                      nullptr, code, 0, text, sizeof(text), nullptr);
  std::string_view said(text, length);
  while (!said.empty() && std::string_view(". \r\n").find(said.back()) != std::string_view::npos) {
    said.remove_suffix(1);
  }
  return said.empty() ? ErrorText(kPrinterError) : std::string(said);
}

std::string TextOf(const JOB_INFO_1W& job) {
  const std::string said =
      job.pStatus == nullptr ? "" : FromQString(QString::fromWCharArray(job.pStatus));
  return said.empty() ? ErrorText(kPrinterError) : said;
}

}  // namespace

QueueWatch::QueueWatch(const QString& queue) : queue_(queue) {
  OpenQueue(queue).EachJob([this](const JOB_INFO_1W& job) { before_.insert(job.JobId); });
}

// A job that is gone again was printed; one that waits, or is on a printer that is paused, was
// taken.
std::string QueueWatch::Refusal(bool drawn) const {
  const OpenQueue queue(queue_);
  if (queue.code() == ERROR_INVALID_PRINTER_NAME) return "The printer is not there";
  if (queue.code() != ERROR_SUCCESS) return SystemText(queue.code());
  if (!drawn) return "";
  constexpr DWORD kWrong = JOB_STATUS_ERROR | JOB_STATUS_BLOCKED_DEVQ;
  std::string why;
  queue.EachJob([&](const JOB_INFO_1W& job) {
    if (before_.count(job.JobId) == 0 && (job.Status & kWrong) != 0) why = TextOf(job);
  });
  return why;
}

}  // namespace logchecker
