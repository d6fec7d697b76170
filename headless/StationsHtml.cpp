
#include "headless/StationsReport.h"
#include "headless/Unchecked.h"
#include "headless/pages/Board.h"
#include "headless/pages/BoardPage.h"
#include "platform/Platform.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

class StationsHtml : public StationsReport {
 public:
  explicit StationsHtml(const Options& options) { head_.title = ToUtf8(options.title); }

  void Begin(const std::vector<ListedStation>& /*stations*/, const Write& /*write*/) override {}

  void Add(const StationOutcome& outcome, const Write& /*write*/) override {
    board_.Add("", {outcome.report, ""});
  }

  void End(const Write& write) override {
    board_.Settle(Os().clock.UtcNow(), std::nullopt);
    head_.madeAt = CheckTime();
    write(BoardPage(board_, head_));
  }

 private:
  Board board_;
  BoardHead head_;
};

}  // namespace

std::unique_ptr<StationsReport> MakeStationsHtml(const Options& options) {
  return std::make_unique<StationsHtml>(options);
}

}  // namespace logchecker
